#include "Totals.h"

#include <algorithm>

using namespace Vek::Framework::Utilities;

namespace Invoicing
{

namespace
{

TaxSum& FindOrInsert(std::vector<TaxSum>& sums, Decimal const& rate)
{
    auto const found = std::lower_bound(sums.begin(), sums.end(), rate,
                                        [](TaxSum const& sum, Decimal const& wanted) { return sum.rate < wanted; });
    if (found != sums.end() && found->rate == rate)
        return *found;
    return *sums.insert(found, { rate, Decimal(0, -2), Decimal(0, -2) });
}

// At most 11 digits of an amount by 5 of a rate: exact before it is rounded.
Decimal ComputeTax(Decimal const& net, Decimal const& rate)
{
    return (net * rate * Decimal(1, -2)).Round(2, RoundMode::HalfAwayFromZero, true);
}

} // namespace

void Totals::Add(Totals const& other)
{
    for (TaxSum const& sum : other.rates)
    {
        TaxSum& own = FindOrInsert(rates, sum.rate);
        own.net += sum.net;
        own.tax += sum.tax;
    }
    net += other.net;
    tax += other.tax;
    gross += other.gross;
}

Totals ComputeTotals(Invoice const& invoice)
{
    Totals totals;
    for (InvoiceLine const& line : invoice.lines)
        FindOrInsert(totals.rates, line.taxRate).net += line.net;
    for (TaxSum& sum : totals.rates)
    {
        sum.tax = ComputeTax(sum.net, sum.rate);
        totals.net += sum.net;
        totals.tax += sum.tax;
    }
    totals.gross = totals.net + totals.tax;
    return totals;
}

} // namespace Invoicing
