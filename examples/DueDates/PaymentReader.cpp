#include "Payment.h"

#include "ValueLine.h"

#include <SysBase/VekDateText.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <vector>

using namespace Vek::Framework::Utilities;
using VekSysBase::VekDateEx;

namespace Example
{

namespace
{

enum Column : std::size_t
{
    Number,
    InvoiceDate,
    Amount,
    Conditions,
    PaidOn,
    ColumnCount
};

constexpr std::array<wchar_t const*, ColumnCount> c_columnNames = { L"Nummer", L"Rechnungsdatum", L"Betrag",
                                                                    L"Bedingungen", L"Bezahlt am" };

std::string Describe(std::wstring const& text, DateTextFault const& fault)
{
    switch (fault.error)
    {
    case DateTextError::MissingUnit:
        return "the date is not complete";
    case DateTextError::ShortYear:
        return "a year has four digits";
    case DateTextError::OutOfRange:
        return "there is no such day";
    default:
        return WStringHelper::GetUTF8FromUTF16(L'\'' + text.substr(fault.position, 1) + L"' cannot stand here");
    }
}

bool TryReadNumber(std::wstring const& text, std::wstring& number, Fault& fault)
{
    number = text;
    fault = { 0, "the number is missing" };
    return !text.empty();
}

bool TryReadCents(std::wstring const& text, Decimal& amount, Fault& fault)
{
    if (!TryReadAmount(text, 2, amount, fault))
        return false;
    amount = amount.Round(2, RoundMode::HalfAwayFromZero, true); // 75,5 is 75.50 from here on
    fault = { 0, "an amount to be paid is above 0" };
    return amount > 0;
}

bool TryReadPaidOn(std::wstring const& text, Settings const& settings, VekDateEx& paidOn, Fault& fault)
{
    paidOn = VekDateEx();
    if (text.empty())
        return true;
    if (!TryReadDate(text, paidOn, fault))
        return false;
    fault = { 0, "paid after the reference date" };
    return paidOn <= settings.referenceDate;
}

// The first column that is wrong, or ColumnCount.
std::size_t FindBadColumn(std::vector<std::wstring> const& values, Settings const& settings, Payment& payment,
                          Fault& fault)
{
    if (!TryReadNumber(values[Number], payment.number, fault))
        return Number;
    if (!TryReadDate(values[InvoiceDate], payment.invoiceDate, fault))
        return InvoiceDate;
    if (!TryReadCents(values[Amount], payment.amount, fault))
        return Amount;
    if (!TryReadTerms(values[Conditions], payment.terms, fault))
        return Conditions;
    if (!TryReadPaidOn(values[PaidOn], settings, payment.paidOn, fault))
        return PaidOn;
    return ColumnCount;
}

} // namespace

bool TryReadDate(std::wstring const& text, VekDateEx& date, Fault& fault)
{
    DateTextFault dateFault;
    if (text.empty())
        fault = { 0, "the date is missing" };
    else if (!VekSysBase::TryParseGerman(text, date, dateFault))
        fault = { dateFault.position, Describe(text, dateFault) };
    else if (date.GetYear() < 1900 || date.GetYear() > 2199)
        fault = { text.rfind(L'.') + 1, "a year lies between 1900 and 2199" };
    else
        return true;
    return false;
}

bool IsPaymentHeader(std::wstring const& line)
{
    std::vector<std::wstring> values;
    Fault fault;
    return TrySplitLine(line, ColumnCount, ColumnCount, values, fault) &&
           std::equal(values.begin(), values.end(), c_columnNames.begin(), c_columnNames.end());
}

bool TryReadPayment(std::wstring const& line, Settings const& settings, Payment& payment, Fault& fault)
{
    std::vector<std::wstring> values;
    if (!TrySplitLine(line, PaidOn, ColumnCount, values, fault)) // what is not paid needs no last value
        return false;
    std::size_t const column = FindBadColumn(values, settings, payment, fault);
    if (column == ColumnCount)
        return true;
    fault = InLine(line, column, c_columnNames[column], values[column], fault);
    return false;
}

} // namespace Example
