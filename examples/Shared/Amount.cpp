#include "Amount.h"

#include <Utilities/AmountText.h>
#include <Utilities/WStringHelper.h>

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

std::string Describe(std::wstring const& text, AmountFault const& fault)
{
    switch (fault.error)
    {
    case AmountError::MissingDigit:
        return text.empty() ? "the value is missing" : "a digit is missing at the end";
    case AmountError::WrongGroup:
        return "a mark stands between groups of three digits, and a comma in front of a fraction";
    case AmountError::MixedGrouping:
        return "another mark than the first one";
    case AmountError::MissingComma:
        return "the comma is missing that tells thousands from a fraction";
    case AmountError::TooManyDigits:
        return "too many digits";
    default:
        return WStringHelper::GetUTF8FromUTF16(L'\'' + text.substr(fault.position, 1) + L"' cannot stand here");
    }
}

// Nine digits before the comma keep the product of an invoice line within the 34 that are exact; see Summary::Add.
bool IsTooLarge(Decimal const& amount)
{
    return amount.Max(-amount) >= Decimal(1, 9);
}

} // namespace

bool TryReadAmount(std::wstring const& text, int fractionDigits, Decimal& amount, Fault& fault)
{
    Decimal read;
    AmountFault amountFault;
    if (!TryParseAmount(text, read, amountFault))
        fault = { amountFault.position, Describe(text, amountFault) };
    else if (int const excess = read.GetFractionalDigits() - fractionDigits; excess > 0)
        fault = { text.size() - static_cast<std::size_t>(excess), "too many digits behind the comma" };
    else if (IsTooLarge(read))
        fault = { 0, "too large" };
    else
    {
        amount = read;
        return true;
    }
    return false;
}

} // namespace Example
