#pragma once

#include "Booking.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Example
{

/// A line that was skipped.
struct SkippedLine
{
    std::size_t line;
    std::string reason; // UTF-8
};

/// The file of a bank statement: Windows-1252, a header and one booking a line.
struct Statement
{
    std::vector<Booking> bookings;
    std::vector<SkippedLine> skipped;
    std::wstring lineEnd; ///< "\n" or "\r\n", as the header has it
};

/// Bad lines are skipped and told. Throws DocumentError for a file that cannot be read, has another header, or holds an
/// attachment that is cut off.
Statement ReadStatement(std::filesystem::path const& path);

/// Throws DocumentError; a file that was there before is untouched then.
void WriteStatement(std::filesystem::path const& path, Statement const& statement);

} // namespace Example
