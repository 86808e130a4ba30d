// Separated values, read and written.

#include "Samples.h"
#include "SeparatedContest.h"

#include <Utilities/CommaSeparatedValueReader.h>
#include <Utilities/CommaSeparatedValueWriter.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace Benchmarks
{

namespace
{

using Vek::Framework::Utilities::CommaSeparatedValueReader;
using Vek::Framework::Utilities::CommaSeparatedValueWriter;

SeparatedTotals ReadWithOurs(std::wstring const& text)
{
    SeparatedTotals totals;
    auto const read = [&](std::size_t begin, std::size_t end)
    {
        CommaSeparatedValueReader reader(text.substr(begin, end - begin), L';');
        while (reader.MoveNext())
            totals.Add(reader.GetCurrentValue().data(), reader.GetCurrentValue().size());
    };
    ForEachLine(text, read);
    return totals;
}

/// All in one line.
std::wstring WriteWithOurs(std::vector<std::wstring> const& values)
{
    CommaSeparatedValueWriter writer;
    for (std::wstring const& value : values)
        writer.AddValue(value);
    return writer.GetResult();
}

/// A line for each row, joined: half of it is the copying of short strings.
std::wstring WriteRowsWithOurs(std::vector<std::wstring> const& values)
{
    std::wstring text;
    for (std::size_t at = 0; at < values.size(); at += c_columnsCount)
    {
        CommaSeparatedValueWriter writer;
        for (std::size_t column = 0; column < c_columnsCount; ++column)
            writer.AddValue(values[at + column]);
        text += writer.GetResult();
    }
    return text;
}

bool const c_isRegistered = []
{
    for (bool const hasEscapes : { false, true })
    {
        std::wstring const text = Widen(MakeText(MakeValues(hasEscapes)));
        Register(hasEscapes ? "SeparatedReadEscapes/ours" : "SeparatedRead/ours", text.size(),
                 [=] { return ReadWithOurs(text); });
    }
    std::vector<std::string> const values = MakeValues(true);
    std::vector<std::wstring> wide;
    std::transform(values.begin(), values.end(), std::back_inserter(wide), Widen);
    auto const readBack = [](std::wstring const& text) { return ReadWithOurs(text + L'\n'); };
    Register(
        "SeparatedWrite/ours", GetWrittenSize(), [=] { return WriteWithOurs(wide); }, readBack);
    Register(
        "SeparatedWriteByRow/ours", GetWrittenSize(), [=] { return WriteRowsWithOurs(wide); }, readBack);
    return true;
}();

} // namespace

} // namespace Benchmarks
