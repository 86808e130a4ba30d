// Separated values, read and written: a bank statement of 2,000 rows with eight values each, some 150 KB, each row one
// line. Without escapes all contestants read the same text; with them only Boost knows our dialect. libcsv writes its
// own dialect, every value in quotes, into a buffer that is large enough.

#include "Contest.h"

#include <Utilities/CommaSeparatedValueReader.h>
#include <Utilities/CommaSeparatedValueWriter.h>

#include <boost/token_functions.hpp>
#include <csv.h>
#define CSV_IO_NO_THREAD // its second thread is for files
#include <libfccp/csv.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Benchmarks
{

namespace
{

using Vek::Framework::Utilities::CommaSeparatedValueReader;
using Vek::Framework::Utilities::CommaSeparatedValueWriter;

constexpr std::size_t c_columns = 8;

/// What a reader saw: enough to tell when two saw different values.
struct Totals
{
    std::size_t values = 0;
    std::size_t units = 0;
    std::size_t weight = 0; // of the last unit of every value, by its place

    template <class Unit>
    void Add(Unit const* text, std::size_t size)
    {
        ++values;
        units += size;
        if (size != 0)
            weight += values * static_cast<std::size_t>(text[size - 1]);
    }

    bool operator==(Totals const&) const = default;
};

Totals AsTheyAre(Totals const& totals)
{
    return totals;
}

std::vector<std::string> MakeValues(bool hasEscapes)
{
    std::vector<std::string> values;
    for (int row = 0; row < 2000; ++row)
    {
        std::string const number = std::to_string(row);
        values.insert(values.end(), { number, "2024-02-" + std::to_string(10 + row % 20), "DE02120300000000202051",
                                      hasEscapes ? "Schreibwaren; Papier" : "Schreibwaren Papier", "EUR",
                                      "-" + number + ",50", "Rechnung " + number + " vom Februar", "offen" });
    }
    return values;
}

/// As our writer writes them, but without the separator at the end of a line: for the peers it would begin a value.
std::string MakeText(std::vector<std::string> const& values)
{
    std::string text;
    for (std::size_t at = 0; at < values.size(); ++at)
    {
        for (char const c : values[at])
            text.append(c == ';' ? "\\" : "") += c;
        text += (at + 1) % c_columns == 0 ? '\n' : ';';
    }
    return text;
}

template <class Function>
void ForEachLine(std::wstring const& text, Function const& function)
{
    for (std::size_t at = 0; at < text.size();)
    {
        std::size_t const end = text.find(L'\n', at);
        function(at, end);
        at = end + 1;
    }
}

Totals ReadWithOurs(std::wstring const& text)
{
    Totals totals;
    auto const read = [&](std::size_t begin, std::size_t end)
    {
        CommaSeparatedValueReader reader(text.substr(begin, end - begin), L';');
        while (reader.MoveNext())
            totals.Add(reader.GetCurrentValue().data(), reader.GetCurrentValue().size());
    };
    ForEachLine(text, read);
    return totals;
}

Totals ReadWithBoost(std::wstring const& text)
{
    Totals totals;
    boost::escaped_list_separator<wchar_t> separator(L'\\', L';', L'"');
    std::wstring value;
    auto const read = [&](std::size_t begin, std::size_t end)
    {
        separator.reset();
        auto at = text.begin() + static_cast<std::ptrdiff_t>(begin);
        while (separator(at, text.begin() + static_cast<std::ptrdiff_t>(end), value))
            totals.Add(value.data(), value.size());
    };
    ForEachLine(text, read);
    return totals;
}

Totals ReadWithFastCppCsvParser(std::string const& text)
{
    Totals totals;
    io::CSVReader<c_columns, io::trim_chars<>, io::no_quote_escape<';'>> reader("", text.data(),
                                                                                text.data() + text.size());
    char* values[c_columns] = {};
    while (reader.read_row(values[0], values[1], values[2], values[3], values[4], values[5], values[6], values[7]))
        for (char const* const value : values)
            totals.Add(value, std::char_traits<char>::length(value));
    return totals;
}

/// Calls `function` with every value.
template <class Function>
void ParseWithLibcsv(std::string_view text, Function function)
{
    csv_parser parser;
    csv_init(&parser, 0);
    csv_set_delim(&parser, ';');
    auto const onValue = [](void* value, std::size_t size, void* data)
    { (*static_cast<Function*>(data))(static_cast<char const*>(value), size); };
    csv_parse(&parser, text.data(), text.size(), onValue, nullptr, &function);
    csv_fini(&parser, onValue, nullptr, &function);
    csv_free(&parser);
}

Totals ReadWithLibcsv(std::string const& text)
{
    Totals totals;
    ParseWithLibcsv(text, [&](char const* value, std::size_t size) { totals.Add(value, size); });
    return totals;
}

std::wstring Widen(std::string const& ascii)
{
    return std::wstring(ascii.begin(), ascii.end());
}

void RegisterReading()
{
    std::string const text = MakeText(MakeValues(false));
    std::wstring const wide = Widen(text);
    Totals const expected = ReadWithLibcsv(text);
    Register(
        "SeparatedRead/ours", text.size(), [=] { return ReadWithOurs(wide); }, AsTheyAre, expected);
    Register(
        "SeparatedRead/fast_cpp_csv_parser", text.size(), [=] { return ReadWithFastCppCsvParser(text); }, AsTheyAre,
        expected);
    Register(
        "SeparatedRead/Boost", text.size(), [=] { return ReadWithBoost(wide); }, AsTheyAre, expected);
    Register(
        "SeparatedRead/libcsv", text.size(), [=] { return ReadWithLibcsv(text); }, AsTheyAre, ReadWithOurs(wide));

    std::string const escaped = MakeText(MakeValues(true));
    std::wstring const wideEscaped = Widen(escaped);
    Register(
        "SeparatedReadEscapes/ours", escaped.size(), [=] { return ReadWithOurs(wideEscaped); }, AsTheyAre,
        ReadWithBoost(wideEscaped));
    Register(
        "SeparatedReadEscapes/Boost", escaped.size(), [=] { return ReadWithBoost(wideEscaped); }, AsTheyAre,
        ReadWithOurs(wideEscaped));
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
    for (std::size_t at = 0; at < values.size(); at += c_columns)
    {
        CommaSeparatedValueWriter writer;
        for (std::size_t column = 0; column < c_columns; ++column)
            writer.AddValue(values[at + column]);
        text += writer.GetResult();
    }
    return text;
}

std::string WriteWithLibcsv(std::vector<std::string> const& values, std::size_t room)
{
    std::string text(room, '\0');
    char* target = text.data();
    for (std::string const& value : values)
    {
        target += csv_write(target, room, value.data(), value.size());
        *target++ = ';';
    }
    text.resize(static_cast<std::size_t>(target - text.data()));
    return text;
}

void RegisterWriting()
{
    std::vector<std::string> const values = MakeValues(true);
    std::vector<std::wstring> wide;
    std::transform(values.begin(), values.end(), std::back_inserter(wide), Widen);
    Totals expected;
    for (std::string const& value : values)
        expected.Add(value.data(), value.size());

    std::size_t const size = expected.units + expected.values;
    auto const readBack = [](std::wstring const& text) { return ReadWithOurs(text + L'\n'); };
    Register(
        "SeparatedWrite/ours", size, [=] { return WriteWithOurs(wide); }, readBack, expected);
    Register(
        "SeparatedWriteByRow/ours", size, [=] { return WriteRowsWithOurs(wide); }, readBack, expected);
    auto const write = [=, room = 2 * size] { return WriteWithLibcsv(values, room); };
    auto const readBackQuoted = [](std::string const& text) { return ReadWithLibcsv(text.substr(0, text.size() - 1)); };
    Register("SeparatedWrite/libcsv", size, write, readBackQuoted, expected);
    Register("SeparatedWriteByRow/libcsv", size, write, readBackQuoted, expected);
}

bool const c_isRegistered = []
{
    RegisterReading();
    RegisterWriting();
    return true;
}();

} // namespace

} // namespace Benchmarks
