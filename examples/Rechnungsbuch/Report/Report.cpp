#include "Report.h"

#include "Console.h"
#include "FieldInput.h"
#include "InvoiceRow.h"
#include "Table.h"
#include "Totals.h"

#include <Utilities/AmountText.h>

#include <array>

using namespace Vek::Framework::Utilities;
using Example::Alignment;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

using Table = std::vector<std::vector<std::wstring>>;

void PrintInvoices(std::vector<Invoice const*> const& invoices, VekDateEx const& today)
{
    Table table(1);
    std::vector<Alignment> alignments;
    for (std::size_t column = 0; column < c_invoice_columns; ++column)
    {
        ColumnInfo const& info = GetColumnInfo(static_cast<InvoiceColumn>(column));
        table[0].push_back(info.title);
        alignments.push_back(info.isRightAligned ? Alignment::Right : Alignment::Left);
    }
    for (Invoice const* const invoice : invoices)
    {
        InvoiceRow const row = MakeRow(*invoice, today);
        table.push_back({ row.texts.begin(), row.texts.end() });
    }
    Example::PrintTable(table, alignments);
}

void PrintTaxes(Totals const& totals)
{
    Table table{ { L"Steuersatz", L"Netto", L"Steuer", L"Brutto" } };
    for (TaxSum const& sum : totals.rates)
        table.push_back({ FormatTaxRate(sum.rate) + L" %", FormatAmount(sum.net), FormatAmount(sum.tax),
                          FormatAmount(sum.net + sum.tax) });
    table.push_back({ L"Summe", FormatAmount(totals.net), FormatAmount(totals.tax), FormatAmount(totals.gross) });
    Example::PrintTable(table);
}

struct StateSum
{
    std::size_t count = 0;
    Decimal gross{ 0, -2 };

    std::vector<std::wstring> Describe(wchar_t const* name) const
    {
        return { name, std::to_wstring(count), FormatAmount(gross) };
    }
};

StateSum operator+(StateSum const& a, StateSum const& b)
{
    return { a.count + b.count, a.gross + b.gross };
}

void PrintStates(std::vector<Invoice const*> const& invoices, VekDateEx const& today)
{
    std::array<StateSum, 3> sums; // by InvoiceState
    for (Invoice const* const invoice : invoices)
    {
        StateSum& sum = sums[static_cast<std::size_t>(GetState(*invoice, today))];
        sum = sum + StateSum{ 1, ComputeTotals(*invoice).gross };
    }
    auto const& [open, overdue, paid] = sums;
    Example::PrintTable({ { L"Stand", L"Rechnungen", L"Brutto" },
                          (open + overdue).Describe(L"offen"),
                          overdue.Describe(L"  davon \u00fcberf\u00e4llig"),
                          paid.Describe(L"bezahlt") });
}

} // namespace

void PrintReport(std::vector<Invoice const*> const& invoices, VekDateEx const& today)
{
    Totals totals;
    for (Invoice const* const invoice : invoices)
        totals.Add(ComputeTotals(*invoice));
    PrintInvoices(invoices, today);
    Example::PrintLine({});
    PrintTaxes(totals);
    Example::PrintLine({});
    PrintStates(invoices, today);
}

} // namespace Invoicing
