// Boost, fast-cpp-csv-parser and libcsv with the values of SeparatedContest.h. Without escapes all contestants read the
// same text; with them only Boost knows our dialect. libcsv writes its own dialect, every value in quotes, into a
// buffer that is large enough.

#include "Samples.h"
#include "SeparatedContest.h"

#include <boost/token_functions.hpp>
#include <csv.h>
#define CSV_IO_NO_THREAD // its second thread is for files
#include <libfccp/csv.h>

#include <string>
#include <string_view>
#include <vector>

namespace Benchmarks
{

namespace
{

SeparatedTotals ReadWithBoost(std::wstring const& text)
{
    SeparatedTotals totals;
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

SeparatedTotals ReadWithFastCppCsvParser(std::string const& text)
{
    SeparatedTotals totals;
    io::CSVReader<c_columnsCount, io::trim_chars<>, io::no_quote_escape<';'>> reader("", text.data(),
                                                                                     text.data() + text.size());
    char* values[c_columnsCount] = {};
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

SeparatedTotals ReadWithLibcsv(std::string const& text)
{
    SeparatedTotals totals;
    ParseWithLibcsv(text, [&](char const* value, std::size_t size) { totals.Add(value, size); });
    return totals;
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

bool const c_isRegistered = []
{
    std::string const text = MakeText(MakeValues(false));
    Register("SeparatedRead/Boost", text.size(), [wide = Widen(text)] { return ReadWithBoost(wide); });
    Register("SeparatedRead/libcsv", text.size(), [=] { return ReadWithLibcsv(text); });
    std::wstring const escaped = Widen(MakeText(MakeValues(true)));
    for (std::string const workload : { "SeparatedRead", "SeparatedReadViews" })
    {
        Register(workload + "/fast_cpp_csv_parser", text.size(), [=] { return ReadWithFastCppCsvParser(text); });
        Register(workload + "Escapes/Boost", escaped.size(), [=] { return ReadWithBoost(escaped); });
    }

    auto const write = [values = MakeValues(true), room = GetWrittenRoom()] { return WriteWithLibcsv(values, room); };
    auto const readBack = [](std::string const& written)
    { return ReadWithLibcsv(written.substr(0, written.size() - 1)); };
    for (std::string const way : { "", "Again", "ByRow", "ByRowCleared" })
        Register("SeparatedWrite" + way + "/libcsv", GetWrittenSize(), write, readBack);
    return true;
}();

} // namespace

} // namespace Benchmarks
