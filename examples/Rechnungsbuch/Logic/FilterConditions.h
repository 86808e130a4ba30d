// Private: what a filter line is made of.

#pragma once

#include "InvoiceFilter.h"

#include <string>
#include <vector>

namespace Invoicing
{

enum class Comparison
{
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
};

using TextOf = std::wstring const& (*)(Invoice const&);
using DateOf = VekSysBase::VekDateEx (*)(Invoice const&);

InvoiceFilter AllOf(std::vector<InvoiceFilter> filters);
InvoiceFilter AnyOf(std::vector<InvoiceFilter> filters);
InvoiceFilter Not(InvoiceFilter filter);

InvoiceFilter HasState(InvoiceState state);
/// An overdue one is open as well.
InvoiceFilter IsOpen();
/// In the number, the customer or the text of a line; without regard to case, as the next two.
InvoiceFilter ContainsAnywhere(std::wstring const& text);
InvoiceFilter Contains(TextOf textOf, std::wstring const& text);
InvoiceFilter Equals(TextOf textOf, std::wstring const& text);
InvoiceFilter CompareGross(Comparison comparison, Vek::Framework::Utilities::Decimal const& amount);
/// Never true for the zero date.
InvoiceFilter CompareDate(DateOf dateOf, Comparison comparison, VekSysBase::VekDateEx const& date);

} // namespace Invoicing
