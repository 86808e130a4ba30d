#include <Utilities/Internal/DecimalArithmetic/Text.h>

#include <Platform/Attributes.h>
#include <Utilities/Internal/DecimalArithmetic/LongText.h>
#include <Utilities/Internal/DecimalArithmetic/ShortText.h>
#include <Utilities/Internal/ResizeAndOverwrite.h>

#include <algorithm>

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

/// What `write` writes into up to `Room` units and tells the size of: in place if the string has room.
template <std::size_t Room, class Write>
void AppendBy(std::wstring& target, Write const& write)
{
    std::size_t const size = target.size();
    if (size + Room <= target.capacity())
        return ResizeAndOverwrite(target, size + Room,
                                  [=](wchar_t* units, std::size_t) noexcept { return size + write(units + size); });
    wchar_t units[Room];
    std::size_t const count = write(units);
    if (size + count > target.capacity())
        target.reserve(size + Room); // so that the next text finds it
    target.append(units, count);
}

VEK_NOINLINE void AppendShort(std::wstring& target, ShortText const& text, wchar_t separator)
{
    AppendBy<ShortText::c_room>(target, [=](wchar_t* units) noexcept { return text.Write(units, separator); });
}

VEK_NOINLINE void AppendGrouped(std::wstring& target, Encoding value, wchar_t separator, wchar_t grouping)
{
    AppendBy<c_groupedRoom>(target,
                            [=](wchar_t* units) noexcept { return WriteGrouped(units, value, separator, grouping); });
}

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
        WriteDigits(digits, value, c_decletsCount);
        end = digits + c_precision;
    }
    if (IsNegative(value) && zeros != c_precision)
        *--begin = L'-';
    target.append(begin, end);
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
    else if (IsShort(value) && FitsFourGroups(value) && separator.IsSingleCodeUnit() && grouping.HasValue() &&
             grouping.GetValue().IsSingleCodeUnit())
        AppendGrouped(target, value, *separator.begin(), *grouping.GetValue().begin());
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

void AppendText(Decimal const& number, std::wstring& target, CodePoint const& separator,
                Nullable<CodePoint> const& grouping)
{
    Encoding const value = ToEncoding(number);
    if (!IsPlain(separator, grouping))
        return AppendAny(target, value, separator, grouping);
    std::size_t const size = target.size();
    if (!IsShort(value) || size + ShortText::c_room > target.capacity())
        return AppendFull(target, value, separator, grouping);
    ResizeAndOverwrite(target, size + ShortText::c_room,
                       [=, unit = *separator.begin()](wchar_t* units, std::size_t) noexcept
                       { return size + ShortText(value).Write(units + size, unit); });
}

std::wstring MakeText(Decimal const& number, CodePoint const& separator, Nullable<CodePoint> const& grouping)
{
    Encoding const value = ToEncoding(number);
    std::wstring target;
    if (IsPlain(separator, grouping) && IsShort(value))
    {
        ShortText const text(value);
        if (text.size <= target.capacity())
            AppendShort(target, text, *separator.begin());
        else
            ResizeAndOverwrite(target, ShortText::c_room,
                               [text, unit = *separator.begin()](wchar_t* units, std::size_t) noexcept
                               { return text.Write(units, unit); });
        return target;
    }
    if (IsPlain(separator, grouping) && IsFinite(value) && GetFirstDigit(value) != 0)
        target.reserve(1 + c_separatedSize);
    AppendText(number, target, separator, grouping);
    return target;
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
