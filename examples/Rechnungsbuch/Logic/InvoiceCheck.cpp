#include "InvoiceCheck.h"

#include "FieldInput.h"

#include <Utilities/DecimalClassification.h>

#include <algorithm>

using namespace Vek::Framework::Utilities;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

bool IsText(std::wstring const& text)
{
    std::wstring read;
    InputFault fault;
    return TryReadText(text, {}, read, fault) && read == text; // nothing had to be cut off
}

bool IsDate(VekDateEx const& date)
{
    return date.IsValid(true) && date.GetYear() >= c_first_year && date.GetYear() <= c_last_year;
}

// A NaN would equal everything.
bool IsInCents(Decimal const& value)
{
    return !IsNaN(value) && !IsInfinite(value) && value.Round(2, RoundMode::HalfAwayFromZero, true) == value;
}

bool IsLine(InvoiceLine const& line)
{
    return IsText(line.text) && IsInCents(line.net) && IsAmount(line.net) && IsInCents(line.taxRate) &&
           IsTaxRate(line.taxRate);
}

bool Require(bool isAllowed, wchar_t const* text, std::wstring& message)
{
    if (!isAllowed)
        message = text;
    return isAllowed;
}

} // namespace

bool CheckInvoice(Invoice const& invoice, std::wstring& message)
{
    bool const hasDays = invoice.terms.days >= 0 && invoice.terms.days <= Terms::c_greatest_days;
    return Require(IsText(invoice.number), L"Die Rechnungsnummer ist nicht erlaubt.", message) &&
           Require(IsText(invoice.customer), L"Der Name des Kunden ist nicht erlaubt.", message) &&
           Require(IsDate(invoice.date), L"Das Datum ist nicht erlaubt.", message) &&
           Require(hasDays, L"Die Bedingungen sind nicht erlaubt.", message) &&
           Require(!invoice.lines.empty(), L"Eine Rechnung hat mindestens eine Zeile.", message) &&
           Require(std::all_of(invoice.lines.begin(), invoice.lines.end(), IsLine),
                   L"Eine Zeile der Rechnung ist nicht erlaubt.", message) &&
           Require(!invoice.IsPaid() || IsDate(invoice.paidOn), L"Das Datum der Zahlung ist nicht erlaubt.", message) &&
           Require(!invoice.IsPaid() || invoice.paidOn >= invoice.date,
                   L"Eine Rechnung wird nicht vor ihrem Datum bezahlt.", message);
}

} // namespace Invoicing
