#include <Utilities/DecimalArithmetic/Arithmetic.h>

#include <algorithm>
#include <utility>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

constexpr std::uint64_t c_sixes = 0x0666'6666'6666'6666;
constexpr std::uint64_t c_carries = 0x1111'1111'1111'1110; // the lowest bit of every digit but the first

// Amounts of up to fifteen digits are added as four-bit digits, without ever being binary: five look-ups in, six out.

std::uint64_t UnpackDigits(std::uint64_t declets) noexcept
{
    return std::uint64_t{ c_digitsOfDeclets[GetDeclet(declets, 0)] } |
           std::uint64_t{ c_digitsOfDeclets[GetDeclet(declets, 1)] } << 12U |
           std::uint64_t{ c_digitsOfDeclets[GetDeclet(declets, 2)] } << 24U |
           std::uint64_t{ c_digitsOfDeclets[GetDeclet(declets, 3)] } << 36U |
           std::uint64_t{ c_digitsOfDeclets[GetDeclet(declets, 4)] } << 48U;
}

std::uint64_t PackDigits(std::uint64_t digits) noexcept
{
    return std::uint64_t{ c_decletsOfDigits[digits & 0xFFFU] } |
           std::uint64_t{ c_decletsOfDigits[digits >> 12U & 0xFFFU] } << 10U |
           std::uint64_t{ c_decletsOfDigits[digits >> 24U & 0xFFFU] } << 20U |
           std::uint64_t{ c_decletsOfDigits[digits >> 36U & 0xFFFU] } << 30U |
           std::uint64_t{ c_decletsOfDigits[digits >> 48U & 0xFFFU] } << 40U |
           (digits >> 60U) << c_packedBits; // a declet below ten is the digit itself
}

/// Sixes make every digit that reaches ten carry; those that did not are taken back.
constexpr std::uint64_t AddDigits(std::uint64_t a, std::uint64_t b) noexcept
{
    std::uint64_t const raised = a + c_sixes;
    std::uint64_t const sum = raised + b;
    std::uint64_t const withoutCarry = ~(sum ^ raised ^ b) & c_carries;
    return sum - (withoutCarry >> 2U | withoutCarry >> 3U);
}

/// a must not be less than b. A digit that borrowed did so as sixteen, six too many.
constexpr std::uint64_t SubtractDigits(std::uint64_t a, std::uint64_t b) noexcept
{
    std::uint64_t const difference = a - b;
    std::uint64_t const borrowed = (difference ^ a ^ b) & c_carries;
    return difference - (borrowed >> 2U | borrowed >> 3U);
}

/// Brings the number with the greater exponent to the smaller one; false if it has no room for that.
bool Align(std::uint64_t& digits, int difference) noexcept
{
    unsigned const bits = 4U * static_cast<unsigned>(difference);
    if (difference > 14 || digits >> (60U - bits) != 0)
        return false;
    digits <<= bits;
    return true;
}

/// Exact, so that the least digit decides where the sum ends; (Infinity and NaN have no digits.)
struct Aligned
{
    Coefficient upper;
    Coefficient lower;
    int exponent;
    bool isCut; // lower lost digits other than zero
};

/// `upper` with the greater exponent is moved left, up to `limit` digits, and `lower` right for the rest of the way.
Aligned Align(Finite const& upper, Finite const& lower, int limit) noexcept
{
    int const difference = upper.exponent - lower.exponent;
    int const room = upper.coefficient.IsZero() ? difference : limit - CountDigits(upper.coefficient);
    int const left = std::min(difference, room);
    Shifted const shifted = ShiftRight(lower.coefficient, difference - left);
    return { ShiftLeft(upper.coefficient, left), shifted.value, upper.exponent - left, !shifted.dropped.IsZero() };
}

Encoding AddFinite(Finite a, Finite b) noexcept
{
    if (a.exponent < b.exponent)
        std::swap(a, b);
    bool const isSum = a.isNegative == b.isNegative;
    // What is cut off counts for nothing behind a digit that is rounded off; a difference may lose one digit in front.
    Aligned const aligned = Align(a, b, isSum ? c_precision + 1 : c_precision + 2);
    if (isSum)
        return Finish({ a.isNegative, aligned.exponent, Add(aligned.upper, aligned.lower) });
    if (aligned.upper == aligned.lower && !aligned.isCut)
        return Finish({ false, aligned.exponent, { 0, 0 } });
    if (aligned.upper < aligned.lower)
        return Finish({ b.isNegative, aligned.exponent, Subtract(aligned.lower, aligned.upper) });
    Coefficient const difference = Subtract(aligned.upper, aligned.lower);
    return Finish({ a.isNegative, aligned.exponent, aligned.isCut ? Subtract(difference, { 0, 1 }) : difference });
}

/// Both of up to fifteen digits.
Encoding AddSmall(Encoding a, Encoding b) noexcept
{
    std::uint64_t left = UnpackDigits(a.low);
    std::uint64_t right = UnpackDigits(b.low);
    std::uint64_t high = a.high & ~c_signBit;
    if (int const difference = GetSmallExponent(a) - GetSmallExponent(b); difference != 0) [[unlikely]]
    {
        if (!(difference > 0 ? Align(left, difference) : Align(right, -difference)))
            return AddFinite(Unpack(a), Unpack(b));
        high = difference > 0 ? b.high & ~c_signBit : high;
    }
    if (IsNegative(a) == IsNegative(b))
        return { PackDigits(AddDigits(left, right)), high | (a.high & c_signBit) };
    if (left == right)
        return { 0, high };
    return left > right ? Encoding{ PackDigits(SubtractDigits(left, right)), high | (a.high & c_signBit) }
                        : Encoding{ PackDigits(SubtractDigits(right, left)), high | (b.high & c_signBit) };
}

[[gnu::noinline]] Encoding AddLarge(Encoding a, Encoding b) noexcept
{
    return IsFinite(a) && IsFinite(b) ? AddFinite(Unpack(a), Unpack(b)) : Reference::Add(a, b);
}

} // namespace

Encoding Add(Encoding a, Encoding b) noexcept
{
    return AreSmall<c_packedBits>(a, b) ? AddSmall(a, b) : AddLarge(a, b);
}

Encoding Subtract(Encoding a, Encoding b) noexcept
{
    if (AreSmall<c_packedBits>(a, b))
        return AddSmall(a, Negate(b));
    return IsFinite(a) && IsFinite(b) ? AddLarge(a, Negate(b)) : Reference::Subtract(a, b);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
