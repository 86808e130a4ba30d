#pragma once

#include "Contest.h"

#include <string>
#include <vector>

/// A bank statement of 2,000 rows with eight values each, some 150 KB, each row one line.
namespace Benchmarks
{

constexpr std::size_t c_columnsCount = 8;

/// What a reader saw: enough to tell when two saw different values.
struct SeparatedTotals
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

    bool operator==(SeparatedTotals const&) const = default;
};

inline std::vector<std::string> MakeValues(bool hasEscapes)
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
inline std::string MakeText(std::vector<std::string> const& values)
{
    std::string text;
    for (std::size_t at = 0; at < values.size(); ++at)
    {
        for (char const c : values[at])
            text.append(c == ';' ? "\\" : "") += c;
        text += (at + 1) % c_columnsCount == 0 ? '\n' : ';';
    }
    return text;
}

/// Calls `function` with the begin and the end of every line.
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

/// What a text of all values with escapes counts as, in characters.
inline std::size_t GetWrittenSize()
{
    SeparatedTotals totals;
    for (std::string const& value : MakeValues(true))
        totals.Add(value.data(), value.size());
    return totals.units + totals.values;
}

/// Room for them, whatever the dialect, which those that write rows are given.
inline std::size_t GetWrittenRoom()
{
    static std::size_t const s_room = 2 * GetWrittenSize();
    return s_room;
}

} // namespace Benchmarks
