#include <Utilities/Decimal.h>

#include <Exceptions/EnumOutOfRangeException.h>
#include <Exceptions/InvalidStateException.h>
#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>
#include <Utilities/Internal/DecimalArithmetic/Text.h>
#include <Utilities/PortableDecimal.h>

#include <algorithm>
#include <limits>
#include <type_traits>

namespace Vek::Framework::Utilities
{

using namespace DecimalArithmetic;

static_assert(sizeof(Decimal) == 16 && std::is_trivially_copyable_v<Decimal>);

namespace
{

constexpr int c_portableDigits = 19;

constinit Decimal const c_zero;

constexpr std::uint64_t GetMagnitude(long long value) noexcept
{
    auto const bits = static_cast<std::uint64_t>(value);
    return value < 0 ? 0 - bits : bits;
}

Rounding ToRounding(RoundMode mode)
{
    switch (mode)
    {
    case RoundMode::AwayFromZero:
        return Rounding::Up;
    case RoundMode::HalfAwayFromZero:
        return Rounding::HalfUp;
    case RoundMode::TowardZero:
        return Rounding::Down;
    }
    throw EnumOutOfRangeException();
}

/// 0 for what is not in [least, greatest].
template <class Integer>
Integer ToInteger(Encoding encoding) noexcept
{
    Whole const whole = ToWhole(encoding);
    constexpr auto greatest = static_cast<std::uint64_t>(std::numeric_limits<Integer>::max());
    constexpr auto least = 0 - static_cast<std::uint64_t>(std::numeric_limits<Integer>::min());
    if (whole.exceedsUInt64 || whole.magnitude > (whole.isNegative ? least : greatest))
        return 0;
    return static_cast<Integer>(whole.isNegative ? 0 - whole.magnitude : whole.magnitude);
}

} // namespace

Decimal::Decimal(int value) noexcept : Decimal(static_cast<long long>(value))
{
}

Decimal::Decimal(long long value) noexcept : Decimal(ToDecimal(Pack({ value < 0, 0, FromUInt64(GetMagnitude(value)) })))
{
}

Decimal::Decimal(long long coefficient, int exponent) noexcept
    : Decimal(ToDecimal(Finish({ coefficient < 0, exponent, FromUInt64(GetMagnitude(coefficient)) })))
{
}

Decimal::Decimal(double value) : Decimal(ToDecimal(FromDouble(value)))
{
}

Decimal::Decimal(PortableDecimal const& value) noexcept
{
    unsigned int const* const parts = value.GetValueParts();
    Division const split = Platform::Divide({ std::uint64_t{ parts[1] } << 32U | parts[0], parts[2] }, c_limbBase);
    *this = ToDecimal(Finish({ value.IsNegative(), value.GetExponent(), { split.quotient, split.remainder } }));
}

PortableDecimal Decimal::ToPortable() const noexcept
{
    Encoding const encoding = ToEncoding(*this);
    if (!IsFinite(encoding))
        return PortableDecimal(0, 0, 0, 0, DecimalArithmetic::IsNegative(encoding));
    Finite const value = Unpack(encoding);
    int const drop = std::max(0, CountDigits(value.coefficient) - c_portableDigits);
    std::uint64_t const kept = ToUInt64(ShiftRightHalfUp(value.coefficient, drop)); // at most 10^19
    return PortableDecimal(static_cast<unsigned int>(kept), static_cast<unsigned int>(kept >> 32U), 0,
                           value.exponent + drop, value.isNegative);
}

Decimal const& Decimal::Zero() noexcept
{
    return c_zero;
}

Decimal Decimal::FromUnsigned(unsigned long long value) noexcept
{
    return ToDecimal(Pack({ false, 0, FromUInt64(value) }));
}

Decimal Decimal::operator+(Decimal const& other) const noexcept
{
    return ToDecimal(Add(ToEncoding(*this), ToEncoding(other)));
}

Decimal Decimal::operator-(Decimal const& other) const noexcept
{
    return ToDecimal(Subtract(ToEncoding(*this), ToEncoding(other)));
}

Decimal Decimal::operator*(Decimal const& other) const noexcept
{
    return ToDecimal(Multiply(ToEncoding(*this), ToEncoding(other)));
}

Decimal Decimal::operator/(Decimal const& other) const noexcept
{
    return ToDecimal(Divide(ToEncoding(*this), ToEncoding(other)));
}

Decimal Decimal::operator-() const noexcept
{
    return ToDecimal(Minus(ToEncoding(*this)));
}

Decimal& Decimal::operator+=(Decimal const& other) noexcept
{
    return *this = *this + other;
}

Decimal& Decimal::operator-=(Decimal const& other) noexcept
{
    return *this = *this - other;
}

Decimal& Decimal::operator*=(Decimal const& other) noexcept
{
    return *this = *this * other;
}

Decimal& Decimal::operator/=(Decimal const& other) noexcept
{
    return *this = *this / other;
}

Decimal Decimal::Pow(Decimal const& exponent) const noexcept
{
    return ToDecimal(Reference::Power(ToEncoding(*this), ToEncoding(exponent)));
}

Decimal Decimal::Max(Decimal const& other) const noexcept
{
    return ToDecimal(DecimalArithmetic::Max(ToEncoding(*this), ToEncoding(other)));
}

Decimal Decimal::Min(Decimal const& other) const noexcept
{
    return ToDecimal(DecimalArithmetic::Min(ToEncoding(*this), ToEncoding(other)));
}

int Decimal::CompareTo(Decimal const& other) const noexcept
{
    return Compare(ToEncoding(*this), ToEncoding(other));
}

int Decimal::GetFractionalDigits() const noexcept
{
    Encoding const encoding = ToEncoding(*this);
    return IsFinite(encoding) ? std::max(0, -Unpack(encoding).exponent) : 0;
}

Decimal Decimal::Round(int digits, RoundMode mode, bool keepTrailingZeros) const
{
    // One more for the smallest int, which has no negation; both are far out of range.
    int const exponent = digits == std::numeric_limits<int>::min() ? std::numeric_limits<int>::max() : -digits;
    Encoding const rescaled = Rescale(ToEncoding(*this), exponent, ToRounding(mode));
    return ToDecimal(keepTrailingZeros ? rescaled : Reduce(rescaled));
}

Decimal::operator int() const noexcept
{
    return ToInteger<int>(ToEncoding(*this));
}

Decimal::operator unsigned int() const noexcept
{
    return ToInteger<unsigned int>(ToEncoding(*this));
}

Decimal::operator long long() const noexcept
{
    Whole const whole = ToWhole(ToEncoding(*this));
    return static_cast<long long>(whole.isNegative ? 0 - whole.magnitude : whole.magnitude);
}

Decimal::operator long() const noexcept
{
    using SameSize = std::conditional_t<sizeof(long) == sizeof(int), int, long long>;
    return static_cast<long>(static_cast<SameSize>(*this));
}

double Decimal::ToDouble() const
{
    return DecimalArithmetic::ToDouble(ToEncoding(*this));
}

Decimal Decimal::FromString(std::wstring const& text, CodePoint const& separator)
{
    wchar_t const unit =
        separator.IsSingleCodeUnit() ? *separator.begin() : separator.GetAsSingleWChar(); // which throws
    return ToDecimal(Parse(text, unit).value);
}

std::wstring Decimal::ToString(CodePoint const& separator, Nullable<CodePoint> const& grouping) const
{
    return MakeText(*this, separator, grouping);
}

void Decimal::AppendToString(std::wstring& target, CodePoint const& separator,
                             Nullable<CodePoint> const& grouping) const
{
    AppendText(*this, target, separator, grouping);
}

} // namespace Vek::Framework::Utilities
