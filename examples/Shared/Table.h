#pragma once

#include <string>
#include <vector>

namespace Example
{

enum class Alignment
{
    Left,
    Right,
};

std::wstring RightAligned(std::wstring const& text, std::size_t width);
std::wstring LeftAligned(std::wstring const& text, std::size_t width);

/// Prints rows of equally many cells, two blanks between the columns. All columns but the first stand to the right,
/// each as wide as it needs.
void PrintTable(std::vector<std::vector<std::wstring>> const& rows);

/// The same with an alignment for each column. No line ends with blanks.
void PrintTable(std::vector<std::vector<std::wstring>> const& rows, std::vector<Alignment> const& alignments);

} // namespace Example
