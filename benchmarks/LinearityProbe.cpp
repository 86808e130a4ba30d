// Reads documents and changes texts that are extreme in one way, each at a size and at twice the size, and prints the
// ratio of the times: 2 is linear, 4 quadratic. Each runs five times, the fastest counts.

#include "ViewStream.h"

#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>
#include <Utilities/StreamHelper.h>
#include <Utilities/StringHelper.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <string>
#include <vector>

namespace
{

using namespace Vek::Framework::IXMLStreamer::Native;
using Vek::Framework::Utilities::StreamHelper;
using Vek::Framework::Utilities::StringHelper;
using Vek::Framework::Utilities::WStringHelper;

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

/// A name may stand once in a tag.
std::string MakeDifferentAttributes(std::size_t count)
{
    std::string text;
    for (; count > 0; --count)
        text += " name" + std::to_string(count) + "=\"value\"";
    return Wrap("<x" + text + "></x>");
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

/// The fastest of five runs in milliseconds, less what `prepare` takes; -1 when `run` answers false.
template <class Prepare, class Function>
double Measure(Prepare const& prepare, Function const& run)
{
    double fastest = 1e9;
    for (int time = 0; time < 5; ++time)
    {
        auto input = prepare();
        auto const start = std::chrono::steady_clock::now();
        if (!run(input))
            return -1;
        std::chrono::duration<double, std::milli> const duration = std::chrono::steady_clock::now() - start;
        fastest = std::min(fastest, duration.count());
    }
    return fastest;
}

template <std::string (*make)(std::size_t), XMLStreamer::Syntax syntax = XMLStreamer::Lenient>
double Read(std::size_t size)
{
    XMLStreamer streamer;
    streamer.SetSyntax(syntax);
    streamer.CreateRootStructureElement("settings").CreateContentElement("title");
    std::string const document = make(size);
    return Measure([&] { return Benchmarks::ViewStream(document); },
                   [&](Benchmarks::ViewStream& stream) { return streamer.ProcessSource(stream); });
}

/// Every replacement makes the next: "aaa...ab" becomes "b" from behind.
double ReplaceAll(std::size_t size)
{
    auto const make = [=]
    {
        std::wstring text(size, L'a');
        text += L'b';
        return text;
    };
    auto const replace = [](std::wstring& text)
    {
        WStringHelper::ReplaceAll(text, L"ab", L"b");
        return text == L"b";
    };
    return Measure(make, replace);
}

double RemoveWhitespace(std::size_t size)
{
    auto const remove = [=](std::string& text)
    {
        StringHelper::RemoveAllWhitespaces(text);
        return text.size() == size / 2;
    };
    return Measure([=] { return Repeat("a ", size / 2); }, remove);
}

double RemoveFromList(std::size_t size)
{
    auto const make = [=]
    {
        std::vector<std::wstring> list(size, L"gone");
        for (std::size_t i = 0; i < size; i += 2)
            list[i] = L"kept";
        return list;
    };
    auto const remove = [=](std::vector<std::wstring>& list)
    { return WStringHelper::RemoveFromList(list, L"gone") == size / 2; };
    return Measure(make, remove);
}

double ReadAllBytes(std::size_t size)
{
    std::string const bytes(size, 'x');
    return Measure([&] { return Benchmarks::ViewStream(bytes); }, [=](Benchmarks::ViewStream& stream)
                   { return StreamHelper::ReadAllBytes(stream)->GetSize() == size; });
}

} // namespace

int main()
{
    struct Case
    {
        char const* name;
        double (*measure)(std::size_t);
        std::size_t size;
    };
    Case const cases[] = {
        { "attributes in one tag", Read<MakeAttributes>, 1'000'000 },
        { "different attributes in one tag, strict syntax", Read<MakeDifferentAttributes, XMLStreamer::Strict>,
          1'000'000 },
        { "nested elements", Read<MakeNested>, 1'000'000 },
        { "bytes in one text", Read<MakeText>, 64 << 20 },
        { "codes in one text", Read<MakeCodes>, 4'000'000 },
        { "words between elements", Read<MakeDroppedText>, 4'000'000 },
        { "bytes in a comment of \"-a\"", Read<MakeComment>, 16 << 20 },
        { "replacements that each make the next", ReplaceAll, 4'000'000 },
        { "bytes, the white space among them removed", RemoveWhitespace, 8'000'000 },
        { "list items, half of them removed", RemoveFromList, 1'000'000 },
        { "bytes read from a stream", ReadAllBytes, 512 << 20 },
    };
    int refused = 0;
    for (Case const& row : cases)
    {
        double const once = row.measure(row.size);
        double const twice = row.measure(2 * row.size);
        refused += once < 0 || twice < 0;
        std::cout << row.size << ' ' << row.name << ": " << once << " ms, twice as many " << twice << " ms, ratio "
                  << twice / once << std::endl;
    }
    return refused;
}
