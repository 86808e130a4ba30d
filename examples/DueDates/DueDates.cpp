#include "Payment.h"

#include <SysBase/VekDateConversion.h>
#include <SysBase/VekDateEnv.h>
#include <SysBase/Zinstage.h>
#include <Utilities/Duration.h>

#include <algorithm>

using namespace Vek::Framework::Utilities;
using namespace VekSysBase;

namespace Example
{

namespace
{

constexpr Zinsmethode c_method = Zinsmethode::Kalender365;

Decimal RoundToCents(Decimal const& amount)
{
    return amount.Round(2, RoundMode::HalfAwayFromZero, true);
}

VekDateEx ToBankwerktag(VekDateEx const& date)
{
    return VekDateEnv().GetNextBankwerktag(date, 0);
}

// The product is exact, with at most 11 + 6 + 6 digits, and 34 digits of the quotient tell it from any half cent that
// it is not: what counts is rounded once.
Decimal GetInterest(Decimal const& amount, Decimal const& yearlyPercent, int days)
{
    return RoundToCents(amount * yearlyPercent * days / (100 * Zinsjahr(c_method)));
}

VekDateEx AddTo(VekDateEx const& date, Duration const& duration)
{
    return ToVekDate(ToDateTime(date) + duration);
}

} // namespace

DueDates Compute(Payment const& payment, Settings const& settings)
{
    Terms const& terms = payment.terms;
    DueDates due;
    due.netDate = ToBankwerktag(terms.GetNetDate(payment.invoiceDate));
    if (terms.hasDiscount)
    {
        due.discountDate = ToBankwerktag(terms.GetDiscountDate(payment.invoiceDate));
        due.discount = RoundToCents(payment.amount * terms.discountPercent * Decimal(1, -2));
    }
    VekDateEx const end = payment.paidOn.IsZero() ? settings.referenceDate : payment.paidOn;
    due.daysLate = std::max(0, Zinstage(due.netDate, end, c_method));
    due.interest = GetInterest(payment.amount, settings.yearlyPercent, due.daysLate);
    due.dunning = { AddTo(due.netDate, Duration::CreateRelative(14, Duration::Days)),
                    AddTo(due.netDate, Duration::CreateRelative(1, Duration::Months)),
                    AddTo(due.netDate, Duration::CreateRelative(2, Duration::Months)) };
    return due;
}

} // namespace Example
