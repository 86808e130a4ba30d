// Reads a settings document of 100 MB from a file with one reader, in this process alone, and prints the peak of its
// memory above what the process had before. Orcus and rapidxml want the whole text in memory. Usage: MemoryProbe make
// FILE | MemoryProbe READER FILE

#include "XmlReaders.h"

#include <sys/resource.h>

#include <chrono>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <sstream>

namespace
{

using namespace Benchmarks;

long GetPeakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

std::string ReadFile(std::istream& stream)
{
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

using Reader = Totals (*)(std::istream&);

template <Totals (*reader)(std::string const&)>
Totals ReadAll(std::istream& stream)
{
    return reader(ReadFile(stream));
}

std::map<std::string, Reader> const& GetReaders()
{
    static std::map<std::string, Reader> const readers = {
        { "ours", ReadWithOurs },
        { "expat", StreamWithExpat },
        { "libxml2", StreamWithLibxml2 },
        { "orcus", ReadAll<ReadWithOrcus> },
        { "rapidxml", ReadAll<ReadWithRapidxml> },
    };
    return readers;
}

int Measure(Reader reader, std::string const& name, std::istream& stream)
{
    long const before = GetPeakKilobytes();
    auto const start = std::chrono::steady_clock::now();
    Totals const totals = reader(stream);
    std::chrono::duration<double, std::milli> const time = std::chrono::steady_clock::now() - start;
    std::cout << name << ": " << totals.elements << " elements, " << time.count() << " ms, "
              << static_cast<double>(GetPeakKilobytes() - before) / 1024 << " MiB above the start\n";
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    std::string const reader = argc == 3 ? argv[1] : "";
    if (reader == "make")
    {
        std::ofstream file(argv[2], std::ios::binary);
        file << c_declaration << MakeBody(MakeGroups(100'000'000, Codes::Few));
        return file.flush() ? 0 : 1;
    }
    auto const found = GetReaders().find(reader);
    std::ifstream file(argc == 3 ? argv[2] : "", std::ios::binary);
    if (found == GetReaders().end() || !file)
    {
        std::cerr << "Usage: MemoryProbe make|ours|expat|libxml2|orcus|rapidxml FILE\n";
        return 1;
    }
    return Measure(found->second, reader, file);
}
