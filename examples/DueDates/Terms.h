#pragma once

#include "Amount.h"

#include <SysBase/VekDateEx.h>

namespace Example
{

/// By when an invoice is to be paid, and by when with a discount.
struct Terms
{
    bool hasDiscount = false;
    int discountDays = 0;                               ///< from the invoice date
    Vek::Framework::Utilities::Decimal discountPercent; ///< above 0, below 100

    bool isFromMonthEnd = false; ///< else from the invoice date
    int netDays = 0;

    /// Both before they are moved to a bank working day.
    VekSysBase::VekDateEx GetDiscountDate(VekSysBase::VekDateEx invoiceDate) const;
    VekSysBase::VekDateEx GetNetDate(VekSysBase::VekDateEx invoiceDate) const;
};

/// Reads "N Tage netto", "prompt" (0 days), "Monatsultimo" (the last of the invoice's month), "Monatsultimo + N", and
/// "N Tage P % Skonto", alone or joined with one of the others by a comma, in any order; letters in either case. Days
/// are up to 9999, P has up to two fraction digits. Where a discount stands alone, all is due when it ends.
/// False, with the first bad unit in `fault`, for any other text; `terms` holds anything then.
bool TryReadTerms(std::wstring const& text, Terms& terms, Fault& fault);

} // namespace Example
