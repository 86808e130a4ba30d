#include "TotalsLine.h"

#include "Totals.h"

#include <Utilities/AmountText.h>

namespace Invoicing::Dialogs
{

using Vek::Framework::Utilities::FormatAmount;

std::wstring DescribeTotals(std::vector<Invoice const*> const& shown, std::size_t countOfAll,
                            VekSysBase::VekDateEx const& today)
{
    Totals all;
    Totals open;
    Totals overdue;
    for (Invoice const* const invoice : shown)
    {
        Totals const totals = ComputeTotals(*invoice);
        InvoiceState const state = GetState(*invoice, today);
        all.Add(totals);
        if (state != InvoiceState::Paid)
            open.Add(totals);
        if (state == InvoiceState::Overdue)
            overdue.Add(totals);
    }
    std::wstring text = std::to_wstring(shown.size());
    if (shown.size() != countOfAll)
        text += L" von " + std::to_wstring(countOfAll);
    text += countOfAll == 1 ? L" Rechnung" : L" Rechnungen";
    text += L": netto " + FormatAmount(all.net) + L", Steuer " + FormatAmount(all.tax) + L", brutto " +
            FormatAmount(all.gross);
    return text + L"; offen " + FormatAmount(open.gross) + L", davon \u00FCberf\u00E4llig " +
           FormatAmount(overdue.gross);
}

std::wstring DescribeTotals(Invoice const& invoice)
{
    Totals const totals = ComputeTotals(invoice);
    return L"netto " + FormatAmount(totals.net) + L" + Steuer " + FormatAmount(totals.tax) + L" = brutto " +
           FormatAmount(totals.gross);
}

} // namespace Invoicing::Dialogs
