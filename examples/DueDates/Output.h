#pragma once

#include "Payment.h"

#include <filesystem>
#include <vector>

namespace Example
{

/// A line of the list and what follows from it.
struct Entry
{
    Payment payment;
    DueDates due;
};

struct Result
{
    Settings settings;
    std::vector<Entry> entries;
    long long skipped = 0; ///< lines that could not be read
};

/// Prints the entries as a table with their sums.
void PrintEntries(Result const& result);

/// Prints the thirteen holidays of the year by date.
void PrintHolidays(int year);

/// Prints the date's month as a sheet, a line for each calendar week; holidays and other days without banks are marked.
void PrintMonth(VekSysBase::VekDateEx const& date);

/// Dates and amounts as people read them, in Windows-1252. Throws DocumentError when that fails; a file that was there
/// before is untouched then.
void WriteSeparatedValues(std::filesystem::path const& path, Result const& result);

/// The same as a document, dates by ISO 8601 and amounts as 1234567.89.
void WriteXml(std::filesystem::path const& path, Result const& result);

} // namespace Example
