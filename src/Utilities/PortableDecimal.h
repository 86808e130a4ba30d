#pragma once

#include <VekApi.h>

namespace Vek::Framework::Utilities
{

/// A Decimal for those who cannot read its encoding: coefficient * 10^exponent with a sign, the coefficient of 96 bits
/// in three parts. A plain value; Decimal converts from it and, with up to nineteen digits, to it.
class VEK_API PortableDecimal
{
public:
    static constexpr unsigned long long c_value_parts = 3;

    /// The fields as they are given: bits 0 to 31, 32 to 63 and 64 to 95 of the coefficient, the power of ten, the
    /// sign.
    PortableDecimal(unsigned int low, unsigned int mid, unsigned int high, int exponent, bool negative) noexcept;

    /// The low, the middle and the high part; valid as long as this value.
    unsigned int const* GetValueParts() const noexcept { return m_parts; }
    int GetExponent() const noexcept { return m_exponent; }
    bool IsNegative() const noexcept { return m_negative; }

    /// All fields: 10 * 10^0 and 1 * 10^1 are different.
    bool operator==(PortableDecimal const& other) const noexcept = default;

private:
    unsigned int m_parts[c_value_parts];
    int m_exponent;
    bool m_negative;
};

} // namespace Vek::Framework::Utilities
