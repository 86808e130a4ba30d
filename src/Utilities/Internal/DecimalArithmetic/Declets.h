#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Declets: three decimal digits in ten bits, as the densely packed decimal encoding of IEEE 754 has them (Cowlishaw).
///
/// Of the 1024 declets 24 are not canonical: they are read like the canonical ones of the same digits, never written.
namespace Vek::Framework::Utilities::DecimalArithmetic
{

/// 0 to 999 for every declet.
extern std::array<std::uint16_t, 1024> const c_valuesOfDeclets;
/// The same times 1000 and 1,000,000.
extern std::array<std::uint32_t, 1024> const c_thousandsOfDeclets;
extern std::array<std::uint32_t, 1024> const c_millionsOfDeclets;
/// The canonical declet of 0 to 999.
extern std::array<std::uint16_t, 1000> const c_declets;

/// Three digits of four bits each for every declet.
extern std::array<std::uint16_t, 1024> const c_digitsOfDeclets;
/// The canonical declet for three digits of four bits each; 0 for what is no digit.
extern std::array<std::uint16_t, 4096> const c_decletsOfDigits;

/// How many digits a declet has without zeros in front: 0 to 3.
extern std::array<std::uint8_t, 1024> const c_lengthsOfDeclets;

constexpr unsigned c_decletMask = 0x3FF;

/// The declet at `index` (0 is the lowest) of a word that holds six.
constexpr std::size_t GetDeclet(std::uint64_t word, unsigned index) noexcept
{
    return static_cast<std::size_t>(word >> (10 * index)) & c_decletMask;
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
