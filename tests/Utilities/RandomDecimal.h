#pragma once

#include <Utilities/Decimal.h>

#include <cstdint>

#include "PlainDecNumber.h"

/// Operands of all sizes and places: amounts, full coefficients, runs of nines and zeros at the lengths where the quick
/// ways end, exponents equal, near, far and at both ends, signed zeros, Infinity and NaN, and any 128 bits, most of
/// which hold declets that no number is written with. The same for the same seed.
class RandomDecimal
{
public:
    explicit RandomDecimal(unsigned seed) : m_engine(seed) {}

    Vek::Framework::Utilities::Decimal Next() { return Below(16) == 0 ? NextPattern() : Plain::Scan(NextText()); }

    /// In the notation of decNumber.
    std::string NextText()
    {
        std::string const sign = Below(2) == 0 ? "" : "-";
        unsigned const kind = Below(100);
        if (kind < 2)
            return sign + "Infinity";
        if (kind < 4)
            return sign + (kind == 2 ? "NaN" : "sNaN") + (Below(2) == 0 ? "" : NextDigits(1 + Below(33)));
        return sign + NextDigits(NextLength()) + "E" + std::to_string(NextExponent());
    }

    unsigned Below(unsigned limit) { return static_cast<unsigned>(m_engine() % limit); }

private:
    Vek::Framework::Utilities::Decimal NextPattern()
    {
        std::uint64_t words[] = { m_engine(), m_engine() };
        if (Below(3) == 0) // Infinity or NaN
            words[1] |= std::uint64_t{ 0x78 } << 56U;
        return std::bit_cast<Vek::Framework::Utilities::Decimal>(words);
    }

    unsigned NextLength()
    {
        static constexpr unsigned edges[] = { 1, 14, 15, 16, 17, 18, 19, 20, 33, 34, 34, 34 };
        return Below(2) == 0 ? edges[Below(std::size(edges))] : 1 + Below(34);
    }

    std::string NextDigits(unsigned length)
    {
        std::string digits(length, '0');
        unsigned const kind = Below(10);
        for (char& digit : digits)
            digit = kind == 0 ? '9' : kind == 1 ? '0' : static_cast<char>('0' + Below(10));
        if (kind <= 2) // a run, broken at one place; or zeros at the end
            digits[Below(length)] = static_cast<char>('0' + Below(10));
        if (kind == 3)
            std::fill(digits.begin() + Below(length), digits.end(), '0');
        return digits;
    }

    int NextExponent()
    {
        switch (Below(8))
        {
        case 0:
            return static_cast<int>(Below(12290)) - 6176;
        case 1:
            return static_cast<int>(Below(80)) - 6176;
        case 2:
            return 6111 - static_cast<int>(Below(80));
        case 3:
            return static_cast<int>(Below(80)) - 40;
        default:
            return -static_cast<int>(Below(5));
        }
    }

    std::mt19937_64 m_engine;
};

/// How many cases a differential test runs: VEK_DIFFERENTIAL_CASES of the environment, or what the build sets.
inline unsigned GetDifferentialCases()
{
    char const* const cases = std::getenv("VEK_DIFFERENTIAL_CASES");
    return cases == nullptr ? VEK_DEFAULT_DIFFERENTIAL_CASES : static_cast<unsigned>(std::stoul(cases));
}
