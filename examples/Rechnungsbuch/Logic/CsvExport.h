#pragma once

#include "Invoice.h"

#include <string>
#include <vector>

namespace Invoicing
{

/// A head and a line for each invoice: number, customer, date, terms, due date, net, tax, gross, paid on, state;
/// separated by semicolons in the dialect of CommaSeparatedValueWriter, Windows-1252, lines ended by CR LF.
std::string ComposeCsv(std::vector<Invoice const*> const& invoices, VekSysBase::VekDateEx const& today);

/// The same to a file, which is replaced as a whole. False with a German text for the user.
bool TryExportCsv(std::wstring const& path, std::vector<Invoice const*> const& invoices,
                  VekSysBase::VekDateEx const& today, std::wstring& message);

} // namespace Invoicing
