#include "DocumentValues.h"

#include "FieldInput.h"

#include <Exceptions/ArgumentException.h>
#include <SysBase/VekDateText.h>
#include <Utilities/DecimalClassification.h>
#include <Utilities/WStringHelper.h>

#include <utility>

using namespace Vek::Framework::Utilities;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

// Never to be changed: they stand in files.
constexpr std::pair<Terms::Basis, wchar_t const*> c_basisNames[] = {
    { Terms::Basis::InvoiceDate, L"invoiceDate" },
    { Terms::Basis::MonthEnd, L"monthEnd" },
    { Terms::Basis::BankDays, L"bankDays" },
};

bool Refuse(std::wstring& message, std::wstring const& what, std::wstring const& text)
{
    message = what + L": \u201e" + text + L"\u201c";
    return false;
}

// What would be written in another way, as "1e3", "007" and everything that is no number, was not written by us.
bool TryReadDecimal(std::wstring const& text, std::wstring (*format)(Decimal const&), Decimal& value)
{
    Decimal const read = Decimal::FromString(text, L'.');
    if (IsNaN(read) || IsInfinite(read) || format(read) != text)
        return false;
    value = read.Round(2, RoundMode::HalfAwayFromZero, true);
    return true;
}

} // namespace

std::wstring FormatStoredDate(VekDateEx const& date)
{
    return FormatIso8601(date);
}

bool TryReadStoredDate(std::wstring const& text, VekDateEx& date, std::wstring& message)
{
    VekDateEx read;
    DateTextFault fault;
    if (!VekSysBase::TryParseIso8601(text, read, fault) || read.GetYear() < c_first_year ||
        read.GetYear() > c_last_year)
        return Refuse(message, L"Ung\u00fcltiges Datum", text);
    date = read;
    return true;
}

std::wstring FormatStoredAmount(Decimal const& amount)
{
    return amount.Round(2, RoundMode::HalfAwayFromZero, true).ToString(L'.');
}

bool TryReadStoredAmount(std::wstring const& text, Decimal& amount, std::wstring& message)
{
    Decimal read;
    if (!TryReadDecimal(text, FormatStoredAmount, read) || !IsAmount(read))
        return Refuse(message, L"Ung\u00fcltiger Betrag", text);
    amount = read;
    return true;
}

std::wstring FormatStoredRate(Decimal const& rate)
{
    return rate.Round(2, RoundMode::HalfAwayFromZero, false).ToString(L'.');
}

bool TryReadStoredRate(std::wstring const& text, Decimal& rate, std::wstring& message)
{
    Decimal read;
    if (!TryReadDecimal(text, FormatStoredRate, read) || !IsTaxRate(read))
        return Refuse(message, L"Ung\u00fcltiger Steuersatz", text);
    rate = read;
    return true;
}

std::wstring FormatStoredBasis(Terms::Basis basis)
{
    for (auto const& [candidate, name] : c_basisNames)
        if (candidate == basis)
            return name;
    throw Vek::ArgumentException();
}

bool TryReadStoredBasis(std::wstring const& text, Terms::Basis& basis, std::wstring& message)
{
    for (auto const& [candidate, name] : c_basisNames)
        if (text == name)
        {
            basis = candidate;
            return true;
        }
    return Refuse(message, L"Unbekannte Bedingungen", text);
}

bool TryReadStoredDays(std::wstring const& text, int& days, std::wstring& message)
{
    int const read = text.size() <= 3 ? WStringHelper::ParseInt(text) : -1;
    if (read < 0 || std::to_wstring(read) != text)
        return Refuse(message, L"Ung\u00fcltige Zahl von Tagen", text);
    days = read;
    return true;
}

bool TryReadStoredText(std::wstring const& text, std::wstring& value, std::wstring& message)
{
    InputFault fault;
    if (TryReadText(text, L"Der Text", value, fault))
        return true;
    message = fault.text;
    return false;
}

} // namespace Invoicing
