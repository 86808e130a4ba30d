#include "Amount.h"

#include <Utilities/WStringHelper.h>

#include <algorithm>

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

// Nine digits keep the product of an invoice line within the 34 that are exact; see Summary::Add.
constexpr std::size_t c_wholeDigits = 9;

std::string Describe(std::wstring const& text, std::size_t position)
{
    if (text.empty())
        return "the value is missing";
    if (position == text.size())
        return "a digit is missing at the end";
    return WStringHelper::GetUTF8FromUTF16(L'\'' + text.substr(position, 1) + L"' cannot stand here");
}

// Reads digits from `position` on. False, with `position` at the bad unit, when there is none or one too many.
bool SkipDigits(std::wstring const& text, std::size_t mostDigits, std::size_t& position, Fault& fault)
{
    auto const isDigit = [](wchar_t unit) { return unit >= L'0' && unit <= L'9'; };
    auto const start = text.begin() + static_cast<std::ptrdiff_t>(position);
    auto const count = static_cast<std::size_t>(std::find_if_not(start, text.end(), isDigit) - start);
    position += std::min(count, mostDigits);
    if (count == 0)
        fault = { position, Describe(text, position) };
    else if (count > mostDigits)
        fault = { position, "more than " + std::to_string(mostDigits) + " digits" };
    return count > 0 && count <= mostDigits;
}

} // namespace

bool TryReadAmount(std::wstring const& text, std::size_t fractionDigits, Decimal& amount, Fault& fault)
{
    std::size_t position = text.starts_with(L'-') ? 1 : 0;
    if (!SkipDigits(text, c_wholeDigits, position, fault))
        return false;
    if (fractionDigits > 0 && position < text.size() && text[position] == L',')
        if (!SkipDigits(text, fractionDigits, ++position, fault))
            return false;
    if (position < text.size())
    {
        fault = { position, Describe(text, position) };
        return false;
    }
    amount = Decimal::FromString(text, L',');
    return true;
}

} // namespace Example
