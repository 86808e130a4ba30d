#include "Table.h"

#include "Console.h"

#include <algorithm>

namespace Example
{

std::wstring RightAligned(std::wstring const& text, std::size_t width)
{
    return std::wstring(width - std::min(width, text.size()), L' ') + text;
}

std::wstring LeftAligned(std::wstring const& text, std::size_t width)
{
    return text + std::wstring(width - std::min(width, text.size()), L' ');
}

void PrintTable(std::vector<std::vector<std::wstring>> const& rows)
{
    std::vector<Alignment> alignments(rows[0].size(), Alignment::Right);
    alignments[0] = Alignment::Left;
    PrintTable(rows, alignments);
}

void PrintTable(std::vector<std::vector<std::wstring>> const& rows, std::vector<Alignment> const& alignments)
{
    std::vector<std::size_t> widths(alignments.size());
    for (auto const& row : rows)
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    for (auto const& row : rows)
    {
        std::wstring line;
        for (std::size_t column = 0; column < row.size(); ++column)
        {
            auto const align = alignments[column] == Alignment::Left ? LeftAligned : RightAligned;
            line += (column == 0 ? L"" : L"  ") + align(row[column], widths[column]);
        }
        line.erase(line.find_last_not_of(L' ') + 1);
        PrintLine(line);
    }
}

} // namespace Example
