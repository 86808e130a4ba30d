#include <Utilities/DecimalArithmetic/Text.h>

#include <Platform/WideBlock.h>
#include <Utilities/DecimalArithmetic/PackedDigits.h>

#include <algorithm>
#include <bit>
#include <cstring>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

/// Writes the digits of a coefficient one after the other, with a separator before the last ones.
class DigitWriter
{
public:
    /// `whole` digits come before the separator.
    DigitWriter(wchar_t* target, int whole, CodePoint const& separator) noexcept
        : m_target(target),
          m_whole(whole),
          m_separator(separator)
    {
    }

    /// The lowest `count` digits, from 1 to 34.
    void Write(Encoding encoding, int count) noexcept
    {
        if (count == c_precision)
        {
            WriteUnit(static_cast<wchar_t>(L'0' + GetFirstDigit(encoding)));
            --count;
        }
        if (count > c_limbDigits)
        {
            WriteLowest(GetUpperDeclets(encoding), count - c_limbDigits);
            count = c_limbDigits;
        }
        WriteLowest(encoding.low, count);
    }

private:
    void WriteUnit(wchar_t digit) noexcept
    {
        if (m_whole-- == 0)
        {
            m_target = std::copy(m_separator.begin(), m_separator.end(), m_target);
            m_whole = c_precision; // no other separator
        }
        *m_target++ = digit;
    }

    /// The lowest `count` digits of six declets.
    void WriteLowest(std::uint64_t declets, int count) noexcept
    {
        int index = (count - 1) / 3;
        if (int const missing = 3 * (index + 1) - count; missing != 0)
        {
            DigitUnits const& text = GetText(declets, index--);
            for (int i = missing; i < 3; ++i)
                WriteUnit(text.units[i]);
        }
        for (; index >= 0; --index)
            WriteDeclet(GetText(declets, index));
    }

    static DigitUnits const& GetText(std::uint64_t declets, int index) noexcept
    {
        return c_textsOfDeclets[GetDeclet(declets, static_cast<unsigned>(index))];
    }

    /// Stores four units at once, of which the last is overwritten next: by a digit, or by the text's own end.
    void WriteDeclet(DigitUnits const& text) noexcept
    {
        if (m_whole >= 3)
        {
            std::memcpy(m_target, text.units, sizeof(text.units));
            m_target += 3;
            m_whole -= 3;
            return;
        }
        for (int i = 0; i < 3; ++i)
            WriteUnit(text.units[i]);
    }

    wchar_t* m_target;
    int m_whole;
    CodePoint const& m_separator;
};

void Append(std::wstring& target, CodePoint const& codePoint)
{
    target.append(codePoint.begin(), codePoint.end());
}

/// A sign if there is one, then the lowest `count` digits, with the separator after `whole` of them if there are more.
void AppendDigits(std::wstring& target, bool isNegative, Encoding value, int count, int whole,
                  CodePoint const& separator)
{
    std::size_t const size = target.size();
    std::size_t const signSize = isNegative ? 1 : 0;
    std::size_t const separatorSize = count > whole ? separator.GetCodeUnitsCount() : 0;
    target.resize(size + signSize + static_cast<std::size_t>(count) + separatorSize);
    wchar_t* const begin = target.data() + size;
    *begin = L'-'; // overwritten by the first digit where there is no sign
    DigitWriter(begin + signSize, whole, separator).Write(value, count);
}

void AppendSpecial(std::wstring& target, Encoding value)
{
    if (IsNegative(value))
        target += L'-';
    target.append(IsInfinite(value) ? L"Infinity" : IsSignallingNaN(value) ? L"sNaN" : L"NaN");
    Encoding const payload{ value.low, value.high & c_upperDeclets };
    if (IsNaN(value) && CountDigits(payload) != 0)
        AppendDigits(target, false, payload, CountDigits(payload), CountDigits(payload), L'0');
}

/// Puts the mark behind every digit of [begin, end) that a multiple of three digits follows.
void Group(std::wstring& target, std::size_t begin, std::size_t end, CodePoint const& mark)
{
    std::wstring const digits = target.substr(begin, end - begin);
    std::wstring const rest = target.substr(end);
    target.resize(begin);
    for (std::size_t i = 0; i < digits.size(); ++i)
    {
        target += digits[i];
        if (std::size_t const left = digits.size() - i - 1; left != 0 && left % 3 == 0)
            Append(target, mark);
    }
    target += rest;
}

void AppendFinite(std::wstring& target, Encoding value, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    int const exponent = GetExponent(value);
    int const digits = CountDigits(value);
    int const count = std::max(1, digits);
    int const whole = count + exponent; // digits before the separator
    bool const isNegative = IsNegative(value) && digits != 0;
    std::size_t const begin = target.size() + (isNegative ? 1 : 0);
    if (whole > 0)
        AppendDigits(target, isNegative, value, count, std::min(whole, count), separator);
    else
    {
        target.append(isNegative ? L"-0" : L"0");
        Append(target, separator);
        target.append(static_cast<std::size_t>(-whole), L'0');
        AppendDigits(target, false, value, count, count, separator);
    }
    if (exponent > 0)
        target.append(static_cast<std::size_t>(exponent), L'0');
    if (grouping.HasValue() && whole > 3)
        Group(target, begin, begin + static_cast<std::size_t>(whole), grouping.GetValue());
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
