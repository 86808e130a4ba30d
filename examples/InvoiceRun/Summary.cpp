#include "Summary.h"

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

Decimal RoundToCents(Decimal const& amount)
{
    return amount.Round(2, RoundMode::HalfAwayFromZero, true);
}

// Times 0.01 and not by 100: a product stays exact at a fraction of the cost.
Decimal Percent(Decimal const& amount, Decimal const& percent)
{
    return amount * percent * Decimal(1, -2);
}

} // namespace

Total& Total::operator+=(Total const& other)
{
    lines += other.lines;
    net += other.net;
    tax += other.tax;
    return *this;
}

void Summary::Add(InvoiceLine const& line)
{
    Decimal const net = RoundToCents(Percent(line.quantity * line.price, 100 - line.discount));
    m_totals[line.taxRate] += { 1, net, RoundToCents(Percent(net, c_taxRates[line.taxRate])) };
}

Total Summary::GetGrandTotal() const
{
    Total sum;
    for (Total const& total : m_totals)
        sum += total;
    return sum;
}

} // namespace Example
