#pragma once

#include <cstdint>

namespace Vek::Framework::Utilities
{

/// The finalizer of SplitMix64 (Steele, Lea, Flood 2014): every bit of the value moves half of the result's.
constexpr std::uint64_t MixHash(std::uint64_t value) noexcept
{
    value = (value ^ value >> 30U) * 0xBF58476D1CE4E5B9;
    value = (value ^ value >> 27U) * 0x94D049BB133111EB;
    return value ^ value >> 31U;
}

} // namespace Vek::Framework::Utilities
