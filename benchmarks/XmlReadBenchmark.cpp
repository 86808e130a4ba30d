#include "ViewStream.h"
#include "XmlReaders.h"

#include <benchmark/benchmark.h>

#include <functional>

namespace Benchmarks
{

namespace
{

using Reader = std::function<Totals(std::string const& document)>;

struct Document
{
    std::string text;
    Totals totals;     // what every reader has to find
    Totals utf8Totals; // what a reader finds that answers in UTF-8
};

std::size_t CountCodesBeyondAscii(std::string const& text)
{
    std::size_t count = 0;
    for (std::size_t at = text.find('&'); at != std::string::npos; at = text.find('&', at + 1))
        count += text.compare(at, 6, "&euro;") == 0 ? 2 : text.compare(at, 5, "&amp;") == 0 ? 0 : 1;
    return count;
}

Document MakeDocument(std::size_t size, Codes codes)
{
    Document document{ c_declaration + MakeBody(MakeGroups(size, codes)), {}, {} };
    ViewStream stream(document.text);
    document.totals = ReadWithOurs(stream);
    document.utf8Totals = document.totals;
    document.utf8Totals.contentBytes += CountCodesBeyondAscii(document.text);
    return document;
}

Document const& GetDocument(std::size_t megabytes, Codes codes)
{
    static Document const few10 = MakeDocument(10'000'000, Codes::Few);
    static Document const few100 = MakeDocument(100'000'000, Codes::Few);
    static Document const many10 = MakeDocument(10'000'000, Codes::Many);
    return codes == Codes::Many ? many10 : megabytes == 100 ? few100 : few10;
}

void Register(char const* contestant, std::size_t megabytes, Codes codes, Reader const& read)
{
    std::string const name =
        std::string(codes == Codes::Many ? "XmlReadCodes" : "XmlRead") + std::to_string(megabytes) + "MB/" + contestant;
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State& state)
                                 {
                                     Document const& document = GetDocument(megabytes, codes);
                                     Totals totals;
                                     for (auto _ : state)
                                         totals = read(document.text);
                                     if (totals != document.totals && totals != document.utf8Totals)
                                         state.SkipWithError("counted something else than the others");
                                     state.SetBytesProcessed(static_cast<std::int64_t>(document.text.size()) *
                                                             static_cast<std::int64_t>(state.iterations()));
                                 })
        ->Unit(benchmark::kMillisecond);
}

Totals ReadOurs(std::string const& document)
{
    ViewStream stream(document);
    return ReadWithOurs(stream);
}

bool const c_isRegistered = []
{
    for (std::size_t const megabytes : { 10, 100 })
    {
        Register("ours", megabytes, Codes::Few, ReadOurs);
        Register("expat", megabytes, Codes::Few, ReadWithExpat);
        Register("libxml2", megabytes, Codes::Few, ReadWithLibxml2);
        Register("orcus", megabytes, Codes::Few, ReadWithOrcus);
        Register("rapidxml", megabytes, Codes::Few, ReadWithRapidxml);
        Register("pugixml", megabytes, Codes::Few, ReadWithPugixml);
    }
    Register("ours", 10, Codes::Many, ReadOurs);
    Register("libxml2", 10, Codes::Many, ReadWithLibxml2);
    return true;
}();

} // namespace

} // namespace Benchmarks
