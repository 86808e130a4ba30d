#pragma once

#include <Platform/Attributes.h>
#include <Utilities/Internal/DecimalArithmetic/PackedDigits.h>

/// Sums and differences. What most amounts are comes inline, so that no encoding goes through memory on its way.
namespace Vek::Framework::Utilities::DecimalArithmetic
{

/// Any two.
Encoding AddUnlike(Encoding a, Encoding b) noexcept;
Encoding SubtractUnlike(Encoding a, Encoding b) noexcept;

constexpr unsigned c_groupBits = 12;
constexpr std::uint64_t c_groupMask = (std::uint64_t{ 1 } << c_groupBits) - 1;
/// 4096 - 1000 in each of five groups: those that reach 1000 carry.
constexpr std::uint64_t c_groupRaise = 0x0C18'C18C'18C1'8C18;

/// Five declets as numbers of twelve bits, so that sums and differences carry and borrow by themselves. Here and in
/// PackGroups, plus stands for another or, which compilers would make one after the other: a running sum waits for all
/// of it.
inline std::uint64_t UnpackGroups(std::uint64_t declets) noexcept
{
    auto const get = [declets](unsigned index)
    { return std::uint64_t{ c_valuesOfDeclets[0][GetDeclet(declets, index)] } << c_groupBits * index; };
    return (get(0) | get(1)) + (get(2) | get(3) | get(4));
}

/// Five groups, and a sixteenth digit, as declets. Raised groups that did not carry, and those that borrowed, are
/// 4096 - 1000 too great, which the table takes off.
inline std::uint64_t PackGroups(std::uint64_t groups) noexcept
{
    auto const get = [groups](unsigned index)
    { return std::uint64_t{ c_decletsOfGroups[groups >> c_groupBits * index & c_groupMask] } << 10 * index; };
    return (get(0) | get(1)) + (get(2) | get(3)) + (get(4) | groups >> 5 * c_groupBits << c_packedBits);
}

/// Small, of up to fifteen digits and with the same exponent.
constexpr bool AreAlike(Encoding a, Encoding b) noexcept
{
    return (((a.high ^ c_smallPattern) & c_smallMask) | (a.high ^ b.high) << 1U | (a.low | b.low) >> c_packedBits) == 0;
}

VEK_INLINE Encoding AddAlike(Encoding a, Encoding b) noexcept
{
    std::uint64_t const right = UnpackGroups(b.low);
    std::uint64_t const addend = a.high == b.high ? right + c_groupRaise : 0 - right;
    std::uint64_t const sum = UnpackGroups(a.low) + addend; // above zero when both have the same sign
    if (static_cast<std::int64_t>(sum) <= 0)
        return { PackGroups(0 - sum), sum == 0 ? a.high & ~c_signBit : b.high };
    return { PackGroups(sum), a.high };
}

inline Encoding Add(Encoding a, Encoding b) noexcept
{
    return AreAlike(a, b) ? AddAlike(a, b) : AddUnlike(a, b);
}

inline Encoding Subtract(Encoding a, Encoding b) noexcept
{
    return AreAlike(a, b) ? AddAlike(a, Negate(b)) : SubtractUnlike(a, b);
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
