#include "FilterConditions.h"

#include "Totals.h"

#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <compare>
#include <utility>

using namespace Vek::Framework::Utilities;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

bool IsTrue(Comparison comparison, std::weak_ordering order)
{
    switch (comparison)
    {
    case Comparison::Equal:
        return order == 0;
    case Comparison::NotEqual:
        return order != 0;
    case Comparison::Less:
        return order < 0;
    case Comparison::LessOrEqual:
        return order <= 0;
    case Comparison::Greater:
        return order > 0;
    default:
        return order >= 0;
    }
}

} // namespace

InvoiceFilter AllOf(std::vector<InvoiceFilter> filters)
{
    return [filters = std::move(filters)](Invoice const& invoice, VekDateEx const& today)
    {
        return std::all_of(filters.begin(), filters.end(),
                           [&](InvoiceFilter const& filter) { return filter(invoice, today); });
    };
}

InvoiceFilter AnyOf(std::vector<InvoiceFilter> filters)
{
    return [filters = std::move(filters)](Invoice const& invoice, VekDateEx const& today)
    {
        return std::any_of(filters.begin(), filters.end(),
                           [&](InvoiceFilter const& filter) { return filter(invoice, today); });
    };
}

InvoiceFilter Not(InvoiceFilter filter)
{
    return [filter = std::move(filter)](Invoice const& invoice, VekDateEx const& today)
    { return !filter(invoice, today); };
}

InvoiceFilter HasState(InvoiceState state)
{
    return [state](Invoice const& invoice, VekDateEx const& today) { return GetState(invoice, today) == state; };
}

InvoiceFilter IsOpen()
{
    return [](Invoice const& invoice, VekDateEx const&) { return !invoice.IsPaid(); };
}

InvoiceFilter ContainsAnywhere(std::wstring const& text)
{
    return [text](Invoice const& invoice, VekDateEx const&)
    {
        return WStringHelper::ContainsIgnoreCase(invoice.number, text) ||
               WStringHelper::ContainsIgnoreCase(invoice.customer, text) ||
               std::any_of(invoice.lines.begin(), invoice.lines.end(),
                           [&text](InvoiceLine const& line)
                           { return WStringHelper::ContainsIgnoreCase(line.text, text); });
    };
}

InvoiceFilter Contains(TextOf textOf, std::wstring const& text)
{
    return [textOf, text](Invoice const& invoice, VekDateEx const&)
    { return WStringHelper::ContainsIgnoreCase(textOf(invoice), text); };
}

InvoiceFilter Equals(TextOf textOf, std::wstring const& text)
{
    return [textOf, text](Invoice const& invoice, VekDateEx const&)
    { return WStringHelper::EqualsIgnoreCase(textOf(invoice), text); };
}

InvoiceFilter CompareGross(Comparison comparison, Decimal const& amount)
{
    return [comparison, amount](Invoice const& invoice, VekDateEx const&)
    { return IsTrue(comparison, ComputeTotals(invoice).gross.CompareTo(amount) <=> 0); };
}

InvoiceFilter CompareDate(DateOf dateOf, Comparison comparison, VekDateEx const& date)
{
    return [dateOf, comparison, date](Invoice const& invoice, VekDateEx const&)
    {
        VekDateEx const value = dateOf(invoice);
        return !value.IsZero() && IsTrue(comparison, value <=> date);
    };
}

} // namespace Invoicing
