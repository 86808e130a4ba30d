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

/// Up to fifteen digits, with the zeros before and behind the separator: nearly every amount.
constexpr bool IsShort(Encoding value) noexcept
{
    if (!IsSmall<c_packedBits>(value))
        return false;
    int const exponent = GetSmallExponent(value);
    return exponent <= 0 && exponent > -c_wordDigits;
}

/// A sign, and sixteen units in one go.
constexpr std::size_t c_shortRoom = 1 + 16;

/// Into c_shortRoom units; answers how many of them are the text.
std::size_t WriteShort(wchar_t* target, Encoding value, wchar_t separator) noexcept
{
    std::uint64_t const digits = UnpackDigits(value.low);
    int const fraction = -GetSmallExponent(value);
    int const count = std::max(fraction + 1, (static_cast<int>(std::bit_width(digits | 1U)) + 3) / 4);
    // Sixteen digits of four bits, the first one on top, with a gap before the fraction.
    std::uint64_t const whole = digits & ~std::uint64_t{ 0 } << 4 * fraction;
    std::uint64_t const spread = digits + whole * 15;
    unsigned const sign = IsNegative(value) && digits != 0 ? 1 : 0;
    target[0] = L'-';
    target += sign;
    Platform::StoreDigits(target, spread << 4 * (c_wordDigits - count));
    target[count - fraction] = separator;
    return sign + static_cast<unsigned>(count + (fraction != 0 ? 1 : 0));
}

/// Digits of four bits, sixteen to a word, the first one on top. No array: words that go through memory one by one and
/// come back as a pair are waited for.
struct DigitBlocks
{
    std::uint64_t first;
    std::uint64_t second;
    std::uint64_t third;
};

/// More digits, and how they are to be written.
struct LongText
{
    DigitBlocks blocks; // the separator's place included
    bool isNegative;
    int whole; // digits before the separator
    int size;  // without the sign, 16 to 47
};

/// By up to fifteen digits.
constexpr std::uint64_t JoinShifted(std::uint64_t first, std::uint64_t second, int digits) noexcept
{
    return first << 4 * digits | second >> 4U >> (60 - 4 * digits);
}

/// All that begins with the digit at `index` moved by one. The index may lie before the block or behind it.
constexpr std::uint64_t OpenGap(std::uint64_t before, std::uint64_t block, int index) noexcept
{
    std::uint64_t const moved = before << 60U | block >> 4U;
    std::uint64_t const all = ~std::uint64_t{ 0 };
    std::uint64_t const kept = index <= 0 ? 0 : index >= 16 ? all : ~(all >> 4 * index);
    return (block & kept) | (moved & ~kept);
}

LongText MakeLongText(Encoding value) noexcept
{
    PackedDigits const digits = UnpackAllDigits(value);
    int const fraction = -GetExponent(value);
    int const count = std::max(fraction + 1, CountDigits(digits));
    int const whole = count - fraction;
    DigitBlocks all{ digits.high, digits.middle << 4U | digits.low >> 56U, digits.low << 8U }; // the last two are none
    int zeros = 46 - count;
    for (; zeros >= 16; zeros -= 16)
        all = { all.second, all.third, 0 };
    all = { JoinShifted(all.first, all.second, zeros), JoinShifted(all.second, all.third, zeros),
            all.third << 4 * zeros };
    return { { OpenGap(0, all.first, whole), OpenGap(all.first, all.second, whole - 16),
               OpenGap(all.second, all.third, whole - 32) },
             IsNegative(value) && !digits.IsZero(),
             whole,
             fraction == 0 ? count : count + 1 };
}

/// In place, the last sixteen units over those before.
void WriteLong(wchar_t* target, LongText const& text, wchar_t separator) noexcept
{
    DigitBlocks const& blocks = text.blocks;
    *target = L'-';
    target += text.isNegative ? 1 : 0;
    Platform::StoreDigits(target, blocks.first);
    if (text.size >= 32)
    {
        Platform::StoreDigits(target + 16, blocks.second);
        Platform::StoreDigits(target + text.size - 16, JoinShifted(blocks.second, blocks.third, text.size - 32));
    }
    else
        Platform::StoreDigits(target + text.size - 16, JoinShifted(blocks.first, blocks.second, text.size - 16));
    if (text.whole != text.size)
        target[text.whole] = separator;
}

/// Up to 46 digits, with the zeros before and behind the separator, and at least sixteen units.
constexpr int c_longDigits = 46;

bool IsLong(Encoding value) noexcept
{
    int const exponent = GetExponent(value); // far above 0 for an Infinity or NaN
    if (exponent > 0 || exponent <= -c_longDigits)
        return false;
    return exponent <= -c_wordDigits || CountDigits(value) >= 16;
}

/// More units at the end. They are to be written over; a copy of constants is the quickest way to make them.
wchar_t* Grow(std::wstring& target, std::size_t count)
{
    static constexpr wchar_t filler[1 + 16 * 3]{};
    std::size_t const size = target.size();
    target.append(filler, count);
    return target.data() + size;
}

void AppendShort(std::wstring& target, Encoding value, wchar_t separator)
{
    std::size_t const size = target.size();
    if (target.capacity() - size < c_shortRoom)
    {
        wchar_t text[c_shortRoom];
        target.append(text, WriteShort(text, value, separator));
        return;
    }
    wchar_t* const end = Grow(target, c_shortRoom);
    target.resize(size + WriteShort(end, value, separator));
}

void AppendLong(std::wstring& target, Encoding value, wchar_t separator)
{
    LongText const text = MakeLongText(value);
    WriteLong(Grow(target, static_cast<std::size_t>(text.size + (text.isNegative ? 1 : 0))), text, separator);
}

void AppendOther(std::wstring& target, Encoding value, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    if (IsFinite(value))
        AppendFinite(target, value, separator, grouping);
    else
        AppendSpecial(target, value);
}

bool IsPlain(CodePoint const& separator, Nullable<CodePoint> const& grouping) noexcept
{
    return separator.IsSingleCodeUnit() && !grouping.HasValue();
}

} // namespace

void AppendText(std::wstring& target, Encoding value, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    if (!IsPlain(separator, grouping))
        AppendOther(target, value, separator, grouping);
    else if (IsShort(value))
        AppendShort(target, value, *separator.begin());
    else if (IsLong(value))
        AppendLong(target, value, *separator.begin());
    else
        AppendOther(target, value, separator, grouping);
}

std::wstring MakeText(Encoding value, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    if (IsPlain(separator, grouping) && IsShort(value))
    {
        wchar_t text[c_shortRoom];
        return std::wstring(text, WriteShort(text, value, *separator.begin()));
    }
    std::wstring text;
    AppendText(text, value, separator, grouping);
    return text;
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
