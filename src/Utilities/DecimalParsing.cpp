#include <Utilities/DecimalParsing.h>

#include <Utilities/Internal/DecimalArithmetic/Text.h>

namespace Vek::Framework::Utilities
{

bool TryFromString(std::wstring_view text, CodePoint const& separator, Decimal& value, std::size_t& position)
{
    DecimalArithmetic::ParsedNumber const parsed = DecimalArithmetic::Parse(text, separator.GetAsSingleWChar());
    position = parsed.stop;
    if (parsed.isNumber)
        value = DecimalArithmetic::ToDecimal(parsed.value);
    return parsed.isNumber;
}

} // namespace Vek::Framework::Utilities
