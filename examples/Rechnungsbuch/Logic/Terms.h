#pragma once

#include "InputFault.h"

#include <SysBase/VekDateEx.h>

#include <string>

namespace Invoicing
{

/// By when an invoice is to be paid. A plain value.
struct Terms
{
    enum class Basis
    {
        InvoiceDate, ///< days of the calendar from the invoice date
        MonthEnd,    ///< days of the calendar from the end of its month
        BankDays,    ///< bank working days from the invoice date, counted one by one
    };

    static constexpr int c_greatest_days = 999;

    Basis basis = Basis::InvoiceDate;
    int days = 0; ///< 0 to c_greatest_days

    /// Always a bank working day: what falls on another one moves to the next.
    VekSysBase::VekDateEx GetDueDate(VekSysBase::VekDateEx invoiceDate) const;

    bool operator==(Terms const&) const = default;
};

/// "prompt", "30 Tage", "10 Bankwerktage", "Monatsultimo", "Monatsultimo + 10 Tage".
std::wstring FormatTerms(Terms const& terms);

/// Reads these, letters in either case, any number of blanks, "netto" behind "Tage" allowed. False for any other text;
/// `terms` is unchanged then and `fault` tells the first bad unit.
bool TryReadTerms(std::wstring const& text, Terms& terms, InputFault& fault);

} // namespace Invoicing
