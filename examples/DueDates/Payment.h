#pragma once

#include "Terms.h"

#include <array>

namespace Example
{

/// What is asked for all lines: the day of the question, and what a late payer owes a year.
struct Settings
{
    VekSysBase::VekDateEx referenceDate;
    Vek::Framework::Utilities::Decimal yearlyPercent;
};

/// A line of the payment list.
struct Payment
{
    std::wstring number;
    VekSysBase::VekDateEx invoiceDate;
    Vek::Framework::Utilities::Decimal amount; ///< above 0, in cents
    Terms terms;
    VekSysBase::VekDateEx paidOn; ///< the zero date: not yet
};

/// What follows from it. Days are moved to a bank working day; a payment of such a day is in time.
struct DueDates
{
    VekSysBase::VekDateEx discountDate;          ///< the zero date without a discount
    Vek::Framework::Utilities::Decimal discount; ///< what may be kept back until then
    VekSysBase::VekDateEx netDate;
    int daysLate = 0;                             ///< up to the payment, or to the reference date
    Vek::Framework::Utilities::Decimal interest;  ///< of those days, by the calendar and a year of 365 days
    std::array<VekSysBase::VekDateEx, 3> dunning; ///< 14 days, one month and two months after the net date
};

/// 5.3.2024 or 05.03.2024, of the years 1900 to 2199; nothing else and no empty text.
bool TryReadDate(std::wstring const& text, VekSysBase::VekDateEx& date, Fault& fault);

/// True for the first line of a file: Nummer;Rechnungsdatum;Betrag;Bedingungen;Bezahlt am
bool IsPaymentHeader(std::wstring const& line);

/// False for a line that is not as Payment says, or was paid after the reference date: `fault` names the column and has
/// the position in the line, and `payment` holds anything.
bool TryReadPayment(std::wstring const& line, Settings const& settings, Payment& payment, Fault& fault);

/// Amounts are rounded once, half away from zero, to cents.
DueDates Compute(Payment const& payment, Settings const& settings);

} // namespace Example
