#include <Utilities/DecimalArithmetic/Text.h>

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

    void Write(Encoding encoding) noexcept
    {
        unsigned const firstDigit = GetFirstDigit(encoding);
        std::uint64_t const upper = GetUpperDeclets(encoding);
        if (firstDigit != 0)
            WriteUnit(static_cast<wchar_t>(L'0' + firstDigit));
        if (firstDigit != 0)
            WriteDeclets(upper, 5);
        else if (upper != 0)
            WriteWithoutZeros(upper);
        if (firstDigit != 0 || upper != 0)
            WriteDeclets(encoding.low, 6);
        else
            WriteWithoutZeros(encoding.low & c_limbMask);
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

    /// The lowest of a word that holds six.
    void WriteDeclets(std::uint64_t declets, int count) noexcept
    {
        while (count-- > 0)
            WriteDeclet(c_textsOfDeclets[GetDeclet(declets, static_cast<unsigned>(count))]);
    }

    /// At least one digit.
    void WriteWithoutZeros(std::uint64_t declets) noexcept
    {
        int const count = std::max(1, CountDeclets(declets));
        std::size_t const declet = GetDeclet(declets, static_cast<unsigned>(count) - 1);
        for (int i = 3 - std::max(1, CountDigits(std::uint64_t{ c_valuesOfDeclets[declet] })); i < 3; ++i)
            WriteUnit(c_textsOfDeclets[declet].units[i]);
        WriteDeclets(declets, count - 1);
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

/// The digits, of which there are `count`, with the separator after `whole` of them if there are more.
void AppendDigits(std::wstring& target, Encoding value, int count, int whole, CodePoint const& separator)
{
    std::size_t const size = target.size();
    std::size_t const separatorSize = count > whole ? separator.GetCodeUnitsCount() : 0;
    target.resize(size + static_cast<std::size_t>(count) + separatorSize);
    DigitWriter(target.data() + size, whole, separator).Write(value);
}

void AppendSpecial(std::wstring& target, Encoding value)
{
    if (IsNegative(value))
        target += L'-';
    target.append(IsInfinite(value) ? L"Infinity" : IsSignallingNaN(value) ? L"sNaN" : L"NaN");
    Encoding const payload{ value.low, value.high & c_upperDeclets };
    if (IsNaN(value) && CountDigits(payload) != 0)
        AppendDigits(target, payload, CountDigits(payload), CountDigits(payload), L'0');
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
    if (IsNegative(value) && digits != 0)
        target += L'-';
    std::size_t const begin = target.size();
    if (whole > 0)
        AppendDigits(target, value, count, std::min(whole, count), separator);
    else
    {
        target += L'0';
        Append(target, separator);
        target.append(static_cast<std::size_t>(-whole), L'0');
        AppendDigits(target, value, count, count, separator);
    }
    if (exponent > 0)
        target.append(static_cast<std::size_t>(exponent), L'0');
    if (grouping.HasValue() && whole > 3)
        Group(target, begin, begin + static_cast<std::size_t>(whole), grouping.GetValue());
}

} // namespace

void AppendText(std::wstring& target, Encoding value, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    if (IsFinite(value))
        AppendFinite(target, value, separator, grouping);
    else
        AppendSpecial(target, value);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
