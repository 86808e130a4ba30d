#pragma once

#include <cstdint>
#if defined(_MSC_VER) && !defined(__clang__)
#    include <intrin.h>
#endif

/// Arithmetic on 128 bits, which the language lacks and every 64-bit processor has.
namespace Vek::Platform
{

struct UInt128
{
    std::uint64_t low;
    std::uint64_t high;
};

struct Division
{
    std::uint64_t quotient;
    std::uint64_t remainder;
};

inline UInt128 Multiply(std::uint64_t a, std::uint64_t b) noexcept
{
#if defined(_MSC_VER) && !defined(__clang__)
    UInt128 product;
    product.low = _umul128(a, b, &product.high);
    return product;
#else
    __extension__ using Native = unsigned __int128;
    Native const product = static_cast<Native>(a) * b;
    return { static_cast<std::uint64_t>(product), static_cast<std::uint64_t>(product >> 64U) };
#endif
}

constexpr UInt128 Add(UInt128 a, UInt128 b) noexcept
{
    std::uint64_t const low = a.low + b.low;
    return { low, a.high + b.high + (low < a.low ? 1U : 0U) };
}

constexpr UInt128 Add(UInt128 a, std::uint64_t b) noexcept
{
    return Add(a, UInt128{ b, 0 });
}

constexpr UInt128 Subtract(UInt128 a, UInt128 b) noexcept
{
    return { a.low - b.low, a.high - b.high - (a.low < b.low ? 1U : 0U) };
}

constexpr bool IsLess(UInt128 a, UInt128 b) noexcept
{
    return a.high != b.high ? a.high < b.high : a.low < b.low;
}

/// By 1 to 63 bits.
constexpr UInt128 ShiftLeft(UInt128 a, unsigned count) noexcept
{
    return { a.low << count, a.high << count | a.low >> (64U - count) };
}

/// `dividend.high` must be below `divisor`: the quotient has 64 bits.
inline Division Divide(UInt128 dividend, std::uint64_t divisor) noexcept
{
    Division result;
#if defined(_MSC_VER) && !defined(__clang__)
    result.quotient = _udiv128(dividend.high, dividend.low, divisor, &result.remainder);
#else
    // The compiler would call a library function, which divides 128 by 128 bits.
    __asm__("divq %4"
            : "=a"(result.quotient), "=d"(result.remainder)
            : "a"(dividend.low), "d"(dividend.high), "r"(divisor)
            : "cc");
#endif
    return result;
}

} // namespace Vek::Platform
