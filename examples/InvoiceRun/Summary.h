#pragma once

#include "InvoiceLine.h"

#include <filesystem>

namespace Example
{

/// The sum of some lines, in whole cents: amounts always have two fraction digits, also the sum of no line.
struct Total
{
    long long lines = 0;
    Vek::Framework::Utilities::Decimal net{ 0, -2 };
    Vek::Framework::Utilities::Decimal tax{ 0, -2 };

    Vek::Framework::Utilities::Decimal GetGross() const { return net + tax; }
    Total& operator+=(Total const& other);
};

/// What an invoice run adds up.
class Summary
{
public:
    /// Rounds net and tax of the line to cents, half away from zero, and adds them to those of its tax rate.
    /// Exact: a line's product has at most 12 + 13 + 5 digits, and 34 digits hold the sum of any number of lines.
    void Add(InvoiceLine const& line);

    void CountSkipped() { ++m_skipped; }
    long long GetSkipped() const { return m_skipped; }

    /// The sum of one of c_taxRates, by its index.
    Total const& GetTotal(std::size_t taxRate) const { return m_totals[taxRate]; }
    Total GetGrandTotal() const;

private:
    std::array<Total, c_taxRates.size()> m_totals;
    long long m_skipped = 0;
};

/// Prints a row for each tax rate and the sum, numbers as 1.234.567,89.
void PrintSummary(Summary const& summary);

/// Writes the same as a document, numbers as 1234567.89. Throws DocumentError when that fails; a file that was there
/// before is untouched then.
void WriteSummary(std::filesystem::path const& path, Summary const& summary);

} // namespace Example
