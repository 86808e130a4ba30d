#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Declets: three decimal digits in ten bits, as the densely packed decimal encoding of IEEE 754 has them (Cowlishaw).
///
/// Of the 1024 declets 24 are not canonical: they are read like the canonical ones of the same digits, never written.
namespace Vek::Framework::Utilities::DecimalArithmetic
{

/// For each of three declets in a row, the lowest first, so that their entries are only to be added: 0 to 999 for every
/// declet, the same times 1000, and times 1,000,000.
extern std::array<std::array<std::uint32_t, 1024>, 3> const c_valuesOfDeclets;
/// The other way: the canonical declet of 0 to 999, ten bits further up for the next one.
extern std::array<std::array<std::uint32_t, 1000>, 3> const c_declets;

/// Three digits of four bits each for every declet.
extern std::array<std::uint16_t, 1024> const c_digitsOfDeclets;
/// The canonical declet for three digits of four bits each; 0 for what is no digit.
extern std::array<std::uint16_t, 4096> const c_decletsOfDigits;

/// The canonical declet for a group of twelve bits as sums and differences leave it (Addition.h): 0 to 999, or that and
/// 4096 - 1000 more.
extern std::array<std::uint16_t, 4096> const c_decletsOfGroups;

/// Three digits as characters of sixteen bits, the first one lowest.
extern std::array<std::uint64_t, 1024> const c_charactersOfDeclets;

/// How many digits a declet has without zeros in front: 0 to 3.
extern std::array<std::uint8_t, 1024> const c_lengthsOfDeclets;

constexpr unsigned c_decletMask = 0x3FF;

/// The declet at `index` (0 is the lowest) of a word that holds six.
constexpr std::size_t GetDeclet(std::uint64_t word, unsigned index) noexcept
{
    return static_cast<std::size_t>(word >> (10 * index)) & c_decletMask;
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
