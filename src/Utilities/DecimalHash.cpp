#include <Utilities/DecimalHash.h>

#include <Utilities/Internal/DecimalArithmetic/Encoding.h>
#include <Utilities/Internal/MixHash.h>

namespace
{

using namespace Vek::Framework::Utilities::DecimalArithmetic;
using Vek::Framework::Utilities::MixHash;

/// Of equal numbers, those without zeros at the end are one.
std::uint64_t HashFinite(Encoding encoding) noexcept
{
    Finite value = Unpack(encoding);
    if (value.coefficient.IsZero())
        return 0;
    value.exponent += StripZeros(value.coefficient, c_precision);
    auto const tail = static_cast<std::uint64_t>(value.exponent) << 1U | (value.isNegative ? 1U : 0U);
    return MixHash(MixHash(MixHash(value.coefficient.low) + value.coefficient.high) + tail);
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
