#pragma once

#include "Terms.h"

#include <SysBase/VekDateEx.h>
#include <Utilities/Decimal.h>

#include <string>
#include <vector>

namespace Invoicing
{

/// What is charged, with one tax rate. Texts are one line of Windows-1252, so that files hold them without loss.
struct InvoiceLine
{
    std::wstring text;
    Vek::Framework::Utilities::Decimal net;     ///< in cents; negative for what is given back
    Vek::Framework::Utilities::Decimal taxRate; ///< in percent, 0 to 100 with up to two fraction digits

    bool operator==(InvoiceLine const&) const = default;
};

/// A plain value; what it must hold, CheckInvoice says.
struct Invoice
{
    std::wstring number; ///< unique in a book, whatever the case of its letters
    std::wstring customer;
    VekSysBase::VekDateEx date;
    Terms terms;
    std::vector<InvoiceLine> lines;
    VekSysBase::VekDateEx paidOn; ///< the zero date: not yet

    VekSysBase::VekDateEx GetDueDate() const { return terms.GetDueDate(date); }
    bool IsPaid() const { return !paidOn.IsZero(); }

    bool operator==(Invoice const&) const = default;
};

enum class InvoiceState
{
    Open,
    Overdue, ///< not paid, and its due date is over
    Paid,
};

/// `today` is the caller's; the clock is never asked.
InvoiceState GetState(Invoice const& invoice, VekSysBase::VekDateEx const& today);

} // namespace Invoicing
