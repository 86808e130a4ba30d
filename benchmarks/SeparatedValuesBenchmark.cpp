// Separated values, read and written.

#include "Samples.h"
#include "SeparatedContest.h"

#include <Utilities/CommaSeparatedValueReader.h>
#include <Utilities/CommaSeparatedValueViewReader.h>
#include <Utilities/CommaSeparatedValueWriter.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace Benchmarks
{

namespace
{

using Vek::Framework::Utilities::CommaSeparatedValueReader;
using Vek::Framework::Utilities::CommaSeparatedValueViewReader;
using Vek::Framework::Utilities::CommaSeparatedValueWriter;

SeparatedTotals ReadWithOurs(std::wstring const& text)
{
    SeparatedTotals totals;
    auto const read = [&](std::size_t begin, std::size_t end)
    {
        CommaSeparatedValueReader reader(text.substr(begin, end - begin), L';');
        while (reader.MoveNext())
        {
            std::wstring const& value = reader.GetCurrentValue();
            totals.Add(value.data(), value.size());
        }
    };
    ForEachLine(text, read);
    return totals;
}

/// Without a copy of a line or of a value.
SeparatedTotals ReadViewsWithOurs(std::wstring const& text)
{
    SeparatedTotals totals;
    auto const read = [&](std::size_t begin, std::size_t end)
    {
        CommaSeparatedValueViewReader reader(std::wstring_view(text).substr(begin, end - begin), L';');
        while (reader.MoveNext())
        {
            std::wstring_view const value = reader.GetCurrentValue();
            totals.Add(value.data(), value.size());
        }
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

/// All in one line of a writer that wrote it before. The answer lies in it.
std::wstring_view WriteAgainWithOurs(std::vector<std::wstring> const& values)
{
    static CommaSeparatedValueWriter s_writer;
    s_writer.Clear();
    for (std::wstring const& value : values)
        s_writer.AddValue(value);
    return s_writer.GetResult();
}

/// Appends a row's line to `text`.
void WriteRow(CommaSeparatedValueWriter& writer, std::wstring const* values, std::wstring& text)
{
    for (std::size_t column = 0; column < c_columnsCount; ++column)
        writer.AddValue(values[column]);
    text += writer.GetResult();
}

/// A line for each row, joined, by a writer for each.
std::wstring WriteRowsWithOurs(std::vector<std::wstring> const& values)
{
    std::wstring text;
    text.reserve(GetWrittenRoom());
    for (std::size_t at = 0; at < values.size(); at += c_columnsCount)
    {
        CommaSeparatedValueWriter writer;
        WriteRow(writer, &values[at], text);
    }
    return text;
}

/// The same by one writer that is cleared.
std::wstring WriteRowsWithOneOfOurs(std::vector<std::wstring> const& values)
{
    std::wstring text;
    text.reserve(GetWrittenRoom());
    CommaSeparatedValueWriter writer;
    for (std::size_t at = 0; at < values.size(); at += c_columnsCount)
    {
        WriteRow(writer, &values[at], text);
        writer.Clear();
    }
    return text;
}

bool const c_isRegistered = []
{
    for (std::string const escapes : { "", "Escapes" })
    {
        std::wstring const text = Widen(MakeText(MakeValues(!escapes.empty())));
        Register("SeparatedRead" + escapes + "/ours", text.size(), [=] { return ReadWithOurs(text); });
        Register("SeparatedReadViews" + escapes + "/ours", text.size(), [=] { return ReadViewsWithOurs(text); });
    }
    std::vector<std::string> const values = MakeValues(true);
    std::vector<std::wstring> wide;
    std::transform(values.begin(), values.end(), std::back_inserter(wide), Widen);
    std::size_t const size = GetWrittenSize();
    auto const readBack = [](std::wstring_view text) { return ReadWithOurs(std::wstring(text) + L'\n'); };
    Register(
        "SeparatedWrite/ours", size, [=] { return WriteWithOurs(wide); }, readBack);
    Register(
        "SeparatedWriteAgain/ours", size, [=] { return WriteAgainWithOurs(wide); }, readBack);
    Register(
        "SeparatedWriteByRow/ours", size, [=] { return WriteRowsWithOurs(wide); }, readBack);
    Register(
        "SeparatedWriteByRowCleared/ours", size, [=] { return WriteRowsWithOneOfOurs(wide); }, readBack);
    return true;
}();

} // namespace

} // namespace Benchmarks
