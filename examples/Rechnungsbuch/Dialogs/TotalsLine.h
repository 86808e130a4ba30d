#pragma once

#include "Invoice.h"

#include <string>
#include <vector>

namespace Invoicing::Dialogs
{

/// "3 von 12 Rechnungen: netto 1.000,00, Steuer 200,00, brutto 1.200,00; offen 600,00, davon \u00fcberf\u00e4llig
/// 100,00"
std::wstring DescribeTotals(std::vector<Invoice const*> const& shown, std::size_t countOfAll,
                            VekSysBase::VekDateEx const& today);

/// "netto 1.000,00 + Steuer 200,00 = brutto 1.200,00"
std::wstring DescribeTotals(Invoice const& invoice);

} // namespace Invoicing::Dialogs
