// Reads documents that are extreme in one way, each at a size and at twice the size, and prints the ratio of the times:
// 2 is linear, 4 quadratic. Each is read five times, the fastest counts.

#include "ViewStream.h"

#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <string>

namespace
{

using namespace Vek::Framework::IXMLStreamer::Native;

std::string Repeat(std::string const& text, std::size_t count)
{
    std::string all;
    all.reserve(text.size() * count);
    for (; count > 0; --count)
        all += text;
    return all;
}

std::string Wrap(std::string const& body)
{
    return "<?xml version=\"1.0\"?><settings>" + body + "</settings>";
}

std::string MakeAttributes(std::size_t count)
{
    return Wrap("<x" + Repeat(" name=\"value\"", count) + "></x>");
}

std::string MakeNested(std::size_t count)
{
    return Wrap(Repeat("<x>", count) + Repeat("</x>", count));
}

std::string MakeText(std::size_t size)
{
    return Wrap("<title>" + std::string(size, 'a') + "</title>");
}

std::string MakeCodes(std::size_t count)
{
    return Wrap("<title>" + Repeat("a&auml;", count) + "</title>");
}

std::string MakeDroppedText(std::size_t count)
{
    return Wrap(Repeat("a ", count) + "<!-- -->");
}

std::string MakeComment(std::size_t size)
{
    return Wrap("<!-- " + Repeat("-a", size / 2) + " -->");
}

double Read(std::string const& document)
{
    XMLStreamer streamer;
    streamer.CreateRootStructureElement("settings").CreateContentElement("title");
    double fastest = 1e9;
    for (int run = 0; run < 5; ++run)
    {
        Benchmarks::ViewStream stream(document);
        auto const start = std::chrono::steady_clock::now();
        if (!streamer.ProcessSource(stream))
            return -1;
        std::chrono::duration<double, std::milli> const time = std::chrono::steady_clock::now() - start;
        fastest = std::min(fastest, time.count());
    }
    return fastest;
}

} // namespace

int main()
{
    struct Case
    {
        char const* name;
        std::string (*make)(std::size_t);
        std::size_t size;
    };
    Case const cases[] = {
        { "attributes in one tag", MakeAttributes, 1'000'000 },
        { "nested elements", MakeNested, 1'000'000 },
        { "bytes in one text", MakeText, 64 << 20 },
        { "codes in one text", MakeCodes, 4'000'000 },
        { "words between elements", MakeDroppedText, 4'000'000 },
        { "bytes in a comment of \"-a\"", MakeComment, 16 << 20 },
    };
    int refused = 0;
    for (Case const& row : cases)
    {
        double const once = Read(row.make(row.size));
        double const twice = Read(row.make(2 * row.size));
        refused += once < 0 || twice < 0;
        std::cout << row.size << ' ' << row.name << ": " << once << " ms, twice as many " << twice << " ms, ratio "
                  << twice / once << std::endl;
    }
    return refused;
}
