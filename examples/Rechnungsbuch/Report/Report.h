#pragma once

#include "Invoice.h"

#include <vector>

namespace Invoicing
{

/// Prints the invoices as a table, their sums by tax rate, and what of them is open, overdue and paid.
void PrintReport(std::vector<Invoice const*> const& invoices, VekSysBase::VekDateEx const& today);

} // namespace Invoicing
