#pragma once

#include "Invoice.h"

#include <vector>

namespace Invoicing
{

/// The invoices of Data/Rechnungen.xml, which is built into the program, moved in time so that its last day is `today`.
std::vector<Invoice> MakeSampleInvoices(VekSysBase::VekDateEx const& today);

} // namespace Invoicing
