#include "Table.h"

#include "Console.h"

#include <algorithm>

namespace Example
{

std::wstring RightAligned(std::wstring const& text, std::size_t width)
{
    return std::wstring(width - std::min(width, text.size()), L' ') + text;
}

void PrintTable(std::vector<std::vector<std::wstring>> const& rows)
{
    std::vector<std::size_t> widths(rows[0].size());
    for (auto const& row : rows)
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    for (auto const& row : rows)
    {
        std::wstring line = row[0] + std::wstring(widths[0] - row[0].size(), L' ');
        for (std::size_t column = 1; column < row.size(); ++column)
            line += L"  " + RightAligned(row[column], widths[column]);
        PrintLine(line);
    }
}

} // namespace Example
