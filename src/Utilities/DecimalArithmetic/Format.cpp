#include <Utilities/DecimalArithmetic/Text.h>

#include <algorithm>
#include <cstring>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

/// The digits of a coefficient without zeros in front; at least one.
class DigitTextBuffer
{
public:
    explicit DigitTextBuffer(Encoding encoding, unsigned firstDigit) noexcept
    {
        wchar_t* target = m_units;
        *target++ = static_cast<wchar_t>(L'0' + firstDigit);
        std::uint64_t const upper = (encoding.high & c_upperDeclets) << 4U | encoding.low >> c_limbBits;
        if (firstDigit == 0 && upper == 0)
            target = m_units; // the lower six alone
        else
            for (unsigned index = 5; index-- > 0; target += 3)
                Store(target, upper, index);
        for (unsigned index = 6; index-- > 0; target += 3)
            Store(target, encoding.low, index);
        m_end = target;
        m_begin = std::find_if(m_units, m_end - 1, [](wchar_t unit) { return unit != L'0'; });
    }

    wchar_t const* begin() const noexcept { return m_begin; }
    wchar_t const* end() const noexcept { return m_end; }
    int GetCount() const noexcept { return static_cast<int>(m_end - m_begin); }

private:
    /// Four units, of which the next declet overwrites the last.
    static void Store(wchar_t* target, std::uint64_t declets, unsigned index) noexcept
    {
        std::memcpy(target, c_textsOfDeclets[GetDeclet(declets, index)].units, sizeof(DigitText));
    }

    wchar_t m_units[c_precision + 3];
    wchar_t* m_end;
    wchar_t* m_begin;
};

unsigned GetFirstDigit(Encoding encoding) noexcept
{
    bool const isLarge = (encoding.high >> 61U & 3U) == 3;
    return static_cast<unsigned>(isLarge ? 8 + (encoding.high >> 58U & 1U) : encoding.high >> 58U & 7U);
}

int GetExponent(Encoding encoding) noexcept
{
    bool const isLarge = (encoding.high >> 61U & 3U) == 3;
    auto const top = static_cast<int>(encoding.high >> (isLarge ? 59U : 61U) & 3U);
    return (top << 12 | static_cast<int>(encoding.high >> c_exponentShift & 0xFFFU)) - c_bias;
}

void Append(std::wstring& target, CodePoint const& codePoint)
{
    target.append(codePoint.begin(), codePoint.end());
}

void AppendSpecial(std::wstring& target, Encoding value)
{
    target.append(IsInfinite(value) ? L"Infinity" : IsSignallingNaN(value) ? L"sNaN" : L"NaN");
    DigitTextBuffer const payload(value, 0);
    if (IsNaN(value) && *payload.begin() != L'0')
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
    CodePoint const& mark = grouping.GetValue();
    for (int left = count + zeros - 1; left >= 0; --left)
    {
        target += left >= zeros ? *digits++ : L'0';
        if (left != 0 && left % 3 == 0)
            Append(target, mark);
    }
}

void AppendFinite(std::wstring& target, Encoding value, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    DigitTextBuffer const digits(value, GetFirstDigit(value));
    int const exponent = GetExponent(value);
    int const count = digits.GetCount();
    int const whole = count + exponent; // digits before the separator
    if (exponent >= 0)
        return AppendWhole(target, digits.begin(), count, exponent, grouping);
    if (whole > 0)
    {
        AppendWhole(target, digits.begin(), whole, 0, grouping);
        Append(target, separator);
        target.append(digits.begin() + whole, digits.end());
        return;
    }
    target += L'0';
    Append(target, separator);
    target.append(static_cast<std::size_t>(-whole), L'0').append(digits.begin(), digits.end());
}

bool IsZero(Encoding value) noexcept
{
    return IsFinite(value) && Unpack(value).coefficient.IsZero();
}

} // namespace

void AppendText(std::wstring& target, Encoding value, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    if (IsNegative(value) && !IsZero(value))
        target += L'-';
    if (IsFinite(value))
        AppendFinite(target, value, separator, grouping);
    else
        AppendSpecial(target, value);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
