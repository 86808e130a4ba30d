#pragma once

#include <Utilities/CodePoint.h>
#include <Utilities/Nullable.h>
#include <Utilities/RoundMode.h>
#include <VekApi.h>

#include <concepts>
#include <string>
#include <type_traits>

namespace Vek::Framework::Utilities
{

class PortableDecimal;

/// What the language counts among the integers without being numbers.
template <class Type>
concept NoNumber = std::same_as<Type, bool> || std::same_as<Type, char> || std::same_as<Type, wchar_t> ||
    std::same_as<Type, char8_t> || std::same_as<Type, char16_t> || std::same_as<Type, char32_t>;

/// An exact decimal number for amounts, rates and quantities: 0.1 is 0.1.
///
/// Shape:    a decimal128 of IEEE 754-2008 in its densely packed encoding, 16 bytes, the low word first. A plain value,
///           copied freely, safe on any thread.
/// Digits:   34, rounded half away from zero. The exponent belongs to the value: 1.5 and 1.50 are equal, with one and
///           two fraction digits. Exponents reach from -6176 to 6111.
/// Specials: Infinity and NaN, as the General Decimal Arithmetic (Cowlishaw) gives them: 1 / 0 is Infinity, 0 / 0 a
///           NaN, too large a result an Infinity; too small a one is rounded to what is left of its digits. A
///           signalling NaN becomes a quiet one in every operation.
/// Errors:   arithmetic throws nothing. Results are bit for bit those of decNumber.
/// Cost:     nothing is allocated but by text output, by powers, and once by what converts doubles.
class VEK_API Decimal
{
public:
    /// Zero.
    constexpr Decimal() noexcept = default;

    /// Exact, exponent 0. Every integer type is taken; bool and characters are refused by the compiler.
    Decimal(int value) noexcept;
    Decimal(long long value) noexcept;
    template <std::integral Integer>
    Decimal(Integer value) noexcept : Decimal(FromInteger(value))
    {
    }
    template <NoNumber Type>
    Decimal(Type value) = delete;

    /// coefficient * 10^exponent: Decimal(12345, -2) is 123.45. An exponent too great gives Infinity or, where the
    /// digits have room, more zeros; one too small gives fewer digits, at last 0.
    Decimal(long long coefficient, int exponent) noexcept;

    /// The decimal number that was meant: some fifteen digits of the binary one, without zeros at the end, so that 0.1
    /// is 0.1 and 100.0 is 1E+2. NaN gives NaN, an Infinity the one of its sign, -0.0 gives 0.
    /// Steps: the upper 52 bits times a power of two to 34 digits; then all but 14 - floor(log10(2) * binary exponent)
    /// fraction digits (none at least) are dropped one by one from the last, each rounding the next one half up, so
    /// that ...45 rounds up. The powers of two are made when first needed; that may throw std::bad_alloc.
    Decimal(double value);

    /// Exact but for an exponent out of range.
    Decimal(PortableDecimal const& value) noexcept;
    /// Up to nineteen digits, more are rounded half away from zero. A NaN and an Infinity give the coefficient 0.
    PortableDecimal ToPortable() const noexcept;

    static Decimal const& Zero() noexcept;

    Decimal operator+(Decimal const& other) const noexcept;
    Decimal operator-(Decimal const& other) const noexcept;
    Decimal operator*(Decimal const& other) const noexcept;
    Decimal operator/(Decimal const& other) const noexcept;
    /// 0 - value: a zero has no sign then.
    Decimal operator-() const noexcept;
    /// 0 + value, its digits and exponent kept.
    Decimal operator+() const noexcept { return -(-*this); }
    Decimal& operator+=(Decimal const& other) noexcept;
    Decimal& operator-=(Decimal const& other) noexcept;
    Decimal& operator*=(Decimal const& other) noexcept;
    Decimal& operator/=(Decimal const& other) noexcept;

    /// This to the power of `exponent`, which need not be whole.
    Decimal Pow(Decimal const& exponent) const noexcept;
    /// The greater number, or the one that is a number if the other is a quiet NaN.
    Decimal Max(Decimal const& other) const noexcept;
    Decimal Min(Decimal const& other) const noexcept;

    /// -1, 0 or 1 by value: 1.5 equals 1.50, and 0 equals -0.
    /// A NaN equals everything here and in the operators: sort and look up with IsNaN (DecimalClassification.h) at
    /// hand.
    int CompareTo(Decimal const& other) const noexcept;
    bool operator==(Decimal const& other) const noexcept { return CompareTo(other) == 0; }
    bool operator!=(Decimal const& other) const noexcept { return CompareTo(other) != 0; }
    bool operator<(Decimal const& other) const noexcept { return CompareTo(other) < 0; }
    bool operator<=(Decimal const& other) const noexcept { return CompareTo(other) <= 0; }
    bool operator>(Decimal const& other) const noexcept { return CompareTo(other) > 0; }
    bool operator>=(Decimal const& other) const noexcept { return CompareTo(other) >= 0; }

    /// 2 for 1.50, 0 for 15 and for 15E+2, a NaN and an Infinity.
    int GetFractionalDigits() const noexcept;

    /// To `digits` fraction digits, zeros added where needed; a negative count rounds to tens, hundreds and so on. NaN
    /// if that takes more than 34 digits. Without `keepTrailingZeros`, zeros at the end go: 2.50 becomes 2.5, 300 3E+2.
    /// Throws EnumOutOfRangeException for another mode.
    Decimal Round(int digits, RoundMode mode, bool keepTrailingZeros) const;

    /// Rounded half away from zero; 0 for what does not fit, a NaN and an Infinity.
    explicit operator int() const noexcept;
    explicit operator unsigned int() const noexcept;
    /// Rounded half away from zero; what does not fit comes modulo 2^64, on purpose: hosts count on the wrap-around.
    /// 0 for a NaN and an Infinity, and from 35 digits on.
    explicit operator long long() const noexcept;
    /// As the type of the same size above, so that no platform's fixed-size integers are ambiguous.
    explicit operator long() const noexcept;

    /// The nearest double or one beside it. Both Infinities give the positive one; callers count on that.
    /// Steps: times the power of two that makes a whole number of 53 to 56 bits, rounded half up, then ldexp back. The
    /// powers of two are made when first needed; that may throw std::bad_alloc.
    double ToDouble() const;
    explicit operator double() const { return ToDouble(); }

    /// Reads an optional sign, digits with at most one separator among them, and an optional exponent such as e-5; or
    /// "inf", "infinity", "nan" and "snan" in any case, the latter two with up to 33 more digits. Anything else, blanks
    /// and grouping included, gives NaN. More than 34 digits are rounded half up.
    /// Throws InvalidStateException for a separator that is a surrogate pair.
    static Decimal FromString(std::wstring const& text, CodePoint const& separator);

    /// All digits, without an exponent. `grouping` stands between groups of three digits before the separator, zeros
    /// of a positive exponent included. A zero has no sign. ToString(L',', L'.') makes 1.234,50.
    std::wstring ToString(CodePoint const& separator, Nullable<CodePoint> const& grouping = {}) const;
    /// The same, behind what `target` holds.
    void AppendToString(std::wstring& target, CodePoint const& separator,
                        Nullable<CodePoint> const& grouping = {}) const;

private:
    template <std::integral Integer>
    static Decimal FromInteger(Integer value) noexcept
    {
        if constexpr (std::is_signed_v<Integer>)
            return Decimal(static_cast<long long>(value));
        else
            return FromUnsigned(value);
    }

    static Decimal FromUnsigned(unsigned long long value) noexcept;

    unsigned long long m_low = 0;
    unsigned long long m_high = 0x2208000000000000; // the exponent 0
};

/// With a number of another kind on the left: 2 * price, 100 < price.
template <class Number>
concept DecimalOperand = std::is_arithmetic_v<Number>;

template <DecimalOperand Number>
Decimal operator+(Number a, Decimal const& b)
{
    return Decimal(a) + b;
}

template <DecimalOperand Number>
Decimal operator-(Number a, Decimal const& b)
{
    return Decimal(a) - b;
}

template <DecimalOperand Number>
Decimal operator*(Number a, Decimal const& b)
{
    return Decimal(a) * b;
}

template <DecimalOperand Number>
Decimal operator/(Number a, Decimal const& b)
{
    return Decimal(a) / b;
}

template <DecimalOperand Number>
bool operator==(Number a, Decimal const& b)
{
    return Decimal(a) == b;
}

template <DecimalOperand Number>
bool operator!=(Number a, Decimal const& b)
{
    return Decimal(a) != b;
}

template <DecimalOperand Number>
bool operator<(Number a, Decimal const& b)
{
    return Decimal(a) < b;
}

template <DecimalOperand Number>
bool operator<=(Number a, Decimal const& b)
{
    return Decimal(a) <= b;
}

template <DecimalOperand Number>
bool operator>(Number a, Decimal const& b)
{
    return Decimal(a) > b;
}

template <DecimalOperand Number>
bool operator>=(Number a, Decimal const& b)
{
    return Decimal(a) >= b;
}

} // namespace Vek::Framework::Utilities
