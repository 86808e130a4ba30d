#include <Utilities/DecimalHash.h>

#include <Utilities/Internal/DecimalArithmetic/Encoding.h>

namespace
{

using namespace Vek::Framework::Utilities::DecimalArithmetic;

/// The finalizer of SplitMix64 (Steele, Lea, Flood 2014): every bit of the value moves half of the result's.
constexpr std::uint64_t Mix(std::uint64_t value) noexcept
{
    value = (value ^ value >> 30U) * 0xBF58476D1CE4E5B9;
    value = (value ^ value >> 27U) * 0x94D049BB133111EB;
    return value ^ value >> 31U;
}

/// Of equal numbers, those without zeros at the end are one.
std::uint64_t HashFinite(Encoding encoding) noexcept
{
    Finite value = Unpack(encoding);
    if (value.coefficient.IsZero())
        return 0;
    value.exponent += StripZeros(value.coefficient, c_precision);
    auto const tail = static_cast<std::uint64_t>(value.exponent) << 1U | (value.isNegative ? 1U : 0U);
    return Mix(Mix(Mix(value.coefficient.low) + value.coefficient.high) + tail);
}

} // namespace

std::size_t std::hash<Vek::Framework::Utilities::Decimal>::operator()(
    Vek::Framework::Utilities::Decimal const& value) const noexcept
{
    Encoding const encoding = ToEncoding(value);
    if (IsFinite(encoding))
        return static_cast<std::size_t>(HashFinite(encoding));
    return IsNaN(encoding) ? 1 : IsNegative(encoding) ? 2 : 3;
}
