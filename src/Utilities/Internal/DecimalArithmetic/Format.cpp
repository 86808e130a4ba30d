#include <Utilities/Internal/DecimalArithmetic/Text.h>

#include <Platform/WideBlock.h>
#include <Utilities/Internal/DecimalArithmetic/PackedDigits.h>

#include <algorithm>
#include <bit>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

/// The digits of a coefficient as characters, without zeros in front, but at least one.
class DigitText
{
public:
    explicit DigitText(Encoding encoding) noexcept
    {
        PackedDigits const digits = UnpackAllDigits(encoding);
        // Sixteen characters each: four digits at the end of the first, fifteen at the start of the others.
        Platform::StoreDigits(m_units, digits.high);
        Platform::StoreDigits(m_units + 16, digits.middle << 4U);
        Platform::StoreDigits(m_units + 16 + c_wordDigits, digits.low << 4U);
        m_begin = end() - std::max(1, CountDigits(digits));
    }

    wchar_t const* begin() const noexcept { return m_begin; }
    wchar_t const* end() const noexcept { return m_units + 16 + 2 * c_wordDigits; }
    int GetCount() const noexcept { return static_cast<int>(end() - m_begin); }
    bool IsZero() const noexcept { return *m_begin == L'0'; }

private:
    wchar_t m_units[16 + 2 * c_wordDigits + 1];
    wchar_t const* m_begin;
};

void Append(std::wstring& target, CodePoint const& codePoint)
{
    target.append(codePoint.begin(), codePoint.end());
}

void AppendSpecial(std::wstring& target, Encoding value)
{
    if (IsNegative(value))
        target += L'-';
    target.append(IsInfinite(value) ? L"Infinity" : IsSignallingNaN(value) ? L"sNaN" : L"NaN");
    DigitText const payload({ value.low, value.high & c_upperDeclets });
    if (IsNaN(value) && !payload.IsZero())
        target.append(payload.begin(), payload.end());
}

/// Digits before the separator, and `zeros` more.
void AppendWhole(std::wstring& target, wchar_t const* digits, int count, int zeros, Nullable<CodePoint> const& grouping)
{
    if (!grouping.HasValue())
    {
        target.append(digits, static_cast<std::size_t>(count)).append(static_cast<std::size_t>(zeros), L'0');
        return;
    }
    for (int left = count + zeros - 1; left >= 0; --left)
    {
        target += left >= zeros ? *digits++ : L'0';
        if (left != 0 && left % 3 == 0)
            Append(target, grouping.GetValue());
    }
}

void AppendFinite(std::wstring& target, Encoding value, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    DigitText const digits(value);
    int const exponent = GetExponent(value);
    int const whole = digits.GetCount() + exponent; // digits before the separator
    if (IsNegative(value) && !digits.IsZero())
        target += L'-';
    if (whole <= 0)
        target += L'0';
    else
        AppendWhole(target, digits.begin(), std::min(whole, digits.GetCount()), std::max(0, exponent), grouping);
    if (exponent >= 0)
        return;
    Append(target, separator);
    target.append(static_cast<std::size_t>(std::max(0, -whole)), L'0');
    target.append(digits.begin() + std::max(0, whole),
                  static_cast<std::size_t>(digits.GetCount() - std::max(0, whole)));
}

/// Up to fifteen digits, at least one of them before the separator: nearly every amount. False for any other.
bool AppendPlain(std::wstring& target, Encoding value, CodePoint const& separator)
{
    if (!IsSmall<c_packedBits>(value) || !separator.IsSingleCodeUnit())
        return false;
    std::uint64_t const digits = UnpackDigits(value.low);
    int const count = std::max(1, (static_cast<int>(std::bit_width(digits)) + 3) / 4);
    int const fraction = -GetSmallExponent(value);
    if (fraction < 0 || fraction >= count)
        return false;

    // Sixteen digits of four bits, the first one on top, with a gap for the separator.
    unsigned const fractionBits = 4U * static_cast<unsigned>(fraction);
    std::uint64_t const upper = digits >> fractionBits << fractionBits;
    std::uint64_t const spread = fraction == 0 ? digits : upper << 4U | (digits ^ upper);
    int const size = fraction == 0 ? count : count + 1;
    std::uint64_t const aligned = spread << (4U * static_cast<unsigned>(16 - size));

    wchar_t text[1 + 16];
    text[0] = L'-';
    Platform::StoreDigits(text + 1, aligned);
    if (fraction != 0)
        text[1 + count - fraction] = *separator.begin();
    bool const isNegative = IsNegative(value) && digits != 0;
    target.append(isNegative ? text : text + 1, static_cast<std::size_t>(isNegative ? size + 1 : size));
    return true;
}

} // namespace

void AppendText(std::wstring& target, Encoding value, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    if (!grouping.HasValue() && AppendPlain(target, value, separator))
        return;
    if (IsFinite(value))
        AppendFinite(target, value, separator, grouping);
    else
        AppendSpecial(target, value);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
