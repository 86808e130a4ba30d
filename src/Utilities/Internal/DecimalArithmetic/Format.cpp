#include <Utilities/Internal/DecimalArithmetic/Text.h>

#include <Platform/Attributes.h>
#include <Platform/WideBlock.h>
#include <Utilities/Internal/DecimalArithmetic/PackedDigits.h>
#include <Utilities/Internal/ResizeAndOverwrite.h>

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

/// Up to fifteen digits, with the zeros before and behind the separator: nearly every amount.
constexpr bool IsShort(Encoding value) noexcept
{
    if (!IsSmall<c_packedBits>(value))
        return false;
    int const exponent = GetSmallExponent(value);
    return exponent <= 0 && exponent > -c_wordDigits;
}

/// All but so many digits at the end.
constexpr auto c_digitsBefore = []
{
    std::array<std::uint64_t, c_wordDigits> masks{};
    for (unsigned i = 0; i < masks.size(); ++i)
        masks[i] = ~std::uint64_t{ 0 } << 4 * i;
    return masks;
}();

/// Such a number, and how it is to be written.
struct ShortText
{
    explicit ShortText(Encoding value) noexcept
    {
        std::uint64_t const digits = UnpackDigits(value.low);
        int const fraction = -GetSmallExponent(value);
        int const count = std::max(fraction + 1, (static_cast<int>(std::bit_width(digits | 1U)) + 3) / 4);
        std::uint64_t const before = digits & c_digitsBefore[static_cast<std::size_t>(fraction)];
        spread = (digits + before * 15) << 4 * (c_wordDigits - count);
        whole = static_cast<unsigned>(count - fraction);
        sign = IsNegative(value) && digits != 0 ? 1 : 0;
        size = sign + static_cast<unsigned>(count + (fraction != 0 ? 1 : 0));
    }

    /// A sign, and sixteen units in one go.
    static constexpr std::size_t c_room = 1 + 16;

    std::size_t Write(wchar_t* target, wchar_t separator) const noexcept
    {
        target[0] = L'-';
        Platform::StoreDigits(target + sign, spread);
        target[sign + whole] = separator;
        return size;
    }

    std::uint64_t spread; // sixteen digits of four bits, the first one on top, with a gap before the fraction
    unsigned whole;       // digits before the separator
    unsigned sign;        // 0 or 1 unit
    unsigned size;
};

constexpr std::size_t c_declets = 11;

/// All 34 digits: those of the declets behind the first `before` one unit further down.
VEK_INLINE void WriteDigits(wchar_t* target, Encoding value, std::size_t before) noexcept
{
    static constexpr std::uint8_t gaps[2 * c_declets] = { 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                                          1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1 };
    std::uint8_t const* const gap = gaps + c_declets - before;
    auto const write = [target, gap](std::size_t index, std::size_t declet)
    { Platform::StoreFour(target + 1 + 3 * index + gap[index], c_charactersOfDeclets[declet]); };
    std::uint64_t const upper = GetUpperDeclets(value);
    target[0] = static_cast<wchar_t>(L'0' + GetFirstDigit(value));
    write(0, GetDeclet(upper, 4));
    write(1, GetDeclet(upper, 3));
    write(2, GetDeclet(upper, 2));
    write(3, GetDeclet(upper, 1));
    write(4, GetDeclet(upper, 0));
    write(5, GetDeclet(value.low, 5));
    write(6, GetDeclet(value.low, 4));
    write(7, GetDeclet(value.low, 3));
    write(8, GetDeclet(value.low, 2));
    write(9, GetDeclet(value.low, 1));
    write(10, GetDeclet(value.low, 0));
}

/// All 34 digits with the separator behind `whole` of them, 1 to 34, and a zero behind all.
VEK_INLINE void WriteSeparated(wchar_t* target, Encoding value, std::size_t whole, wchar_t separator) noexcept
{
    std::size_t const before = (whole + 1) / 3; // declets that begin before the separator
    WriteDigits(target, value, before);
    if (before != 0)
        Platform::OpenGap(target + 3 * before - 2, whole + 2 - 3 * before);
    target[whole] = separator;
}

constexpr std::size_t c_separatedSize = c_precision + 1;

/// All 34 digits with zeros in front, of which one at most is written. At most 45 stand behind the separator.
VEK_NOINLINE void AppendPadded(std::wstring& target, Encoding value, wchar_t separator)
{
    int const whole = c_precision + GetExponent(value);
    int const zeros = c_precision - CountDigits(value);
    wchar_t text[1 + 16 + c_separatedSize + 1];
    wchar_t* begin = text + 1;
    wchar_t* end = begin + c_separatedSize - (whole == c_precision ? 1 : 0);
    if (whole > 0)
    {
        WriteSeparated(begin, value, static_cast<std::size_t>(whole), separator);
        begin += std::min(zeros, whole - 1);
    }
    else
    {
        std::fill_n(begin, 16, L'0');
        begin[1] = separator;
        wchar_t* const digits = begin + 2 - whole;
        WriteDigits(digits, value, c_declets);
        end = digits + c_precision;
    }
    if (IsNegative(value) && zeros != c_precision)
        *--begin = L'-';
    target.append(begin, end);
}

VEK_NOINLINE void AppendShort(std::wstring& target, ShortText const& text, wchar_t separator)
{
    wchar_t units[ShortText::c_room];
    text.Write(units, separator);
    if (target.size() + text.size > target.capacity())
        target.reserve(target.size() + ShortText::c_room); // so that the next one finds room
    target.append(units, text.size);
}

bool IsPlain(CodePoint const& separator, Nullable<CodePoint> const& grouping) noexcept
{
    return separator.IsSingleCodeUnit() && !grouping.HasValue();
}

/// Whatever is not written in place.
VEK_NOINLINE void AppendAny(std::wstring& target, Encoding value, CodePoint const& separator,
                            Nullable<CodePoint> const& grouping)
{
    int const exponent = GetExponent(value); // far above 0 for an Infinity or NaN
    if (IsPlain(separator, grouping) && IsShort(value))
        AppendShort(target, ShortText(value), *separator.begin());
    else if (IsPlain(separator, grouping) && exponent <= 0 && exponent > -46)
        AppendPadded(target, value, *separator.begin());
    else if (IsFinite(value))
        AppendFinite(target, value, separator, grouping);
    else
        AppendSpecial(target, value);
}

/// All 34 digits in place, if the string has room.
VEK_NOINLINE void AppendFull(std::wstring& target, Encoding value, CodePoint const& separator,
                             Nullable<CodePoint> const& grouping)
{
    int const exponent = GetExponent(value);
    std::size_t const size = target.size();
    std::size_t const sign = IsNegative(value) ? 1 : 0;
    if (exponent > 0 || exponent <= -c_precision || GetFirstDigit(value) == 0 ||
        size + sign + c_separatedSize > target.capacity())
        return AppendAny(target, value, separator, grouping);
    ResizeAndOverwrite(target, size + sign + c_separatedSize,
                       [=, unit = *separator.begin()](wchar_t* units, std::size_t) noexcept
                       {
                           units[size] = L'-';
                           WriteSeparated(units + size + sign, value, static_cast<std::size_t>(c_precision + exponent),
                                          unit);
                           return size + sign + c_separatedSize - (exponent == 0 ? 1 : 0);
                       });
}

} // namespace

void AppendText(std::wstring& target, Encoding value, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    if (!IsPlain(separator, grouping))
        return AppendAny(target, value, separator, grouping);
    std::size_t const size = target.size();
    if (!IsShort(value) || size + ShortText::c_room > target.capacity())
        return AppendFull(target, value, separator, grouping);
    ResizeAndOverwrite(target, size + ShortText::c_room,
                       [=, unit = *separator.begin()](wchar_t* units, std::size_t) noexcept
                       { return size + ShortText(value).Write(units + size, unit); });
}

std::wstring MakeText(Encoding value, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    std::wstring target;
    if (!IsPlain(separator, grouping) || !IsShort(value))
    {
        if (IsFinite(value) && GetFirstDigit(value) != 0)
            target.reserve(1 + c_separatedSize);
        AppendText(target, value, separator, grouping);
        return target;
    }
    ShortText const text(value);
    if (text.size <= target.capacity())
        AppendShort(target, text, *separator.begin());
    else
        ResizeAndOverwrite(target, ShortText::c_room,
                           [text, unit = *separator.begin()](wchar_t* units, std::size_t) noexcept
                           { return text.Write(units, unit); });
    return target;
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
