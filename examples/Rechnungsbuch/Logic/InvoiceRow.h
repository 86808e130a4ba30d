#pragma once

#include "Invoice.h"

#include <Utilities/ColorBase.h>

#include <array>
#include <cstddef>
#include <string>

namespace Invoicing
{

enum class InvoiceColumn : std::size_t
{
    Number,
    Customer,
    Date,
    Due,
    Gross,
    State,
};

constexpr std::size_t c_invoice_columns = 6;

/// The head of a column, and how its texts stand.
struct ColumnInfo
{
    wchar_t const* title;
    bool isRightAligned;
};

ColumnInfo const& GetColumnInfo(InvoiceColumn column);

/// How an invoice stands in a list: the texts of its columns.
struct InvoiceRow
{
    InvoiceState state = InvoiceState::Open;
    std::array<std::wstring, c_invoice_columns> texts;

    std::wstring const& GetText(InvoiceColumn column) const { return texts[static_cast<std::size_t>(column)]; }
};

InvoiceRow MakeRow(Invoice const& invoice, VekSysBase::VekDateEx const& today);

/// That it is open, overdue and for how many days, or paid and when, for people.
std::wstring DescribeState(Invoice const& invoice, VekSysBase::VekDateEx const& today);

/// Opaque colours; ToWin32Color makes Win32's of them.
struct RowColors
{
    using Color = Vek::Framework::Utilities::ColorBase<Vek::Framework::Utilities::RGBChannel>;

    Color background;
    Color text;
};

/// Overdue ones stand out, paid ones step back, selected ones stay what they are; the contrast is at least 4.5 in all
/// of them, which W3C asks for ordinary text.
RowColors const& GetRowColors(InvoiceState state, bool isSelected);

} // namespace Invoicing
