#pragma once

#include "Invoice.h"

#include <vector>

namespace Invoicing
{

struct TaxSum
{
    Vek::Framework::Utilities::Decimal rate; ///< percent
    Vek::Framework::Utilities::Decimal net;
    Vek::Framework::Utilities::Decimal tax;
};

/// Sums in cents, right to the last one: the tax is computed and rounded, half away from zero, once for each rate of an
/// invoice, on the sum of its lines. Sums of several invoices add what stands on them.
struct Totals
{
    std::vector<TaxSum> rates; ///< one for each rate that occurs, the lowest first
    Vek::Framework::Utilities::Decimal net{ 0, -2 };
    Vek::Framework::Utilities::Decimal tax{ 0, -2 };
    Vek::Framework::Utilities::Decimal gross{ 0, -2 };

    void Add(Totals const& other);
};

Totals ComputeTotals(Invoice const& invoice);

} // namespace Invoicing
