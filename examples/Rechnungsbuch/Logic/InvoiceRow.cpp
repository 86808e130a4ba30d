#include "InvoiceRow.h"

#include "Totals.h"

#include <SysBase/VekDateText.h>
#include <Utilities/AmountText.h>

using VekSysBase::FormatGerman;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

constexpr std::array<ColumnInfo, c_invoice_columns> c_columns = { {
    { L"Nummer", false },
    { L"Kunde", false },
    { L"Datum", false },
    { L"F\u00e4llig", false },
    { L"Brutto", true },
    { L"Status", false },
} };

using Color = RowColors::Color;

constexpr Color c_white(255, 255, 255, 255);

// By InvoiceState: open, overdue, paid.
constexpr std::array<RowColors, 3> c_colors = { {
    { c_white, Color(0, 0, 0, 255) },
    { Color(255, 221, 214, 255), Color(138, 0, 0, 255) },
    { c_white, Color(96, 96, 96, 255) },
} };
constexpr std::array<RowColors, 3> c_selectedColors = { {
    { Color(0, 84, 153, 255), c_white },
    { Color(168, 0, 0, 255), c_white },
    { Color(70, 84, 98, 255), c_white },
} };

} // namespace

ColumnInfo const& GetColumnInfo(InvoiceColumn column)
{
    return c_columns.at(static_cast<std::size_t>(column));
}

InvoiceRow MakeRow(Invoice const& invoice, VekDateEx const& today)
{
    return { GetState(invoice, today),
             { invoice.number, invoice.customer, FormatGerman(invoice.date), FormatGerman(invoice.GetDueDate()),
               Vek::Framework::Utilities::FormatAmount(ComputeTotals(invoice).gross), DescribeState(invoice, today) } };
}

std::wstring DescribeState(Invoice const& invoice, VekDateEx const& today)
{
    switch (GetState(invoice, today))
    {
    case InvoiceState::Paid:
        return L"bezahlt am " + FormatGerman(invoice.paidOn);
    case InvoiceState::Overdue:
    {
        int const days = VekDateEx::GetDaysBetween(invoice.GetDueDate(), today);
        return L"\u00fcberf\u00e4llig seit " + std::to_wstring(days) + (days == 1 ? L" Tag" : L" Tagen");
    }
    default:
        return L"offen";
    }
}

RowColors const& GetRowColors(InvoiceState state, bool isSelected)
{
    return (isSelected ? c_selectedColors : c_colors).at(static_cast<std::size_t>(state));
}

} // namespace Invoicing
