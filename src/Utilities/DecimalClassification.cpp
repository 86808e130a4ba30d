#include <Utilities/DecimalClassification.h>

#include <Utilities/Internal/DecimalArithmetic/Encoding.h>

namespace Vek::Framework::Utilities
{

bool IsNaN(Decimal const& value) noexcept
{
    return DecimalArithmetic::IsNaN(DecimalArithmetic::ToEncoding(value));
}

bool IsInfinite(Decimal const& value) noexcept
{
    return DecimalArithmetic::IsInfinite(DecimalArithmetic::ToEncoding(value));
}

bool IsFinite(Decimal const& value) noexcept
{
    return DecimalArithmetic::IsFinite(DecimalArithmetic::ToEncoding(value));
}

} // namespace Vek::Framework::Utilities
