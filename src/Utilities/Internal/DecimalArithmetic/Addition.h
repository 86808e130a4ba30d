#pragma once

#include <Platform/Attributes.h>
#include <Utilities/Internal/DecimalArithmetic/PackedDigits.h>

/// Sums and differences. What most amounts are comes inline, so that no encoding goes through memory on its way.
namespace Vek::Framework::Utilities::DecimalArithmetic
{

Encoding AddLarge(Encoding a, Encoding b) noexcept;
Encoding SubtractLarge(Encoding a, Encoding b) noexcept;

/// A word of digits and perhaps a sixteenth one, which as a declet is itself.
inline std::uint64_t PackSum(std::uint64_t digits) noexcept
{
    return PackDigits(digits) | (digits >> c_wordBits) << c_packedBits;
}

/// Both of up to fifteen digits.
VEK_INLINE Encoding AddSmall(Encoding a, Encoding b) noexcept
{
    std::uint64_t left = UnpackDigits(a.low);
    std::uint64_t right = UnpackDigits(b.low);
    std::uint64_t high = a.high & ~c_signBit;
    if (int const difference = GetSmallExponent(a) - GetSmallExponent(b); difference != 0) [[unlikely]]
    {
        if (!(difference > 0 ? ShiftWordLeft(left, difference) : ShiftWordLeft(right, -difference)))
            return AddLarge(a, b);
        high = difference > 0 ? b.high & ~c_signBit : high;
    }
    if (IsNegative(a) == IsNegative(b))
        return { PackSum(AddDigits(left, right)), high | (a.high & c_signBit) };
    if (left == right)
        return { 0, high };
    return left > right ? Encoding{ PackDigits(SubtractDigits(left, right).digits), high | (a.high & c_signBit) }
                        : Encoding{ PackDigits(SubtractDigits(right, left).digits), high | (b.high & c_signBit) };
}

inline Encoding Add(Encoding a, Encoding b) noexcept
{
    return AreSmall<c_packedBits>(a, b) ? AddSmall(a, b) : AddLarge(a, b);
}

inline Encoding Subtract(Encoding a, Encoding b) noexcept
{
    return AreSmall<c_packedBits>(a, b) ? AddSmall(a, Negate(b)) : SubtractLarge(a, b);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
