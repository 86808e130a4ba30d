#include <Utilities/DecimalStreams.h>

#include <Utilities/Internal/AsciiText.h>

#include <ostream>

namespace Vek::Framework::Utilities
{

std::ostream& operator<<(std::ostream& stream, Decimal const& value)
{
    return stream << Internal::ToNarrow(value.ToString(L'.', {}));
}

std::wostream& operator<<(std::wostream& stream, Decimal const& value)
{
    return stream << value.ToString(L'.', {});
}

} // namespace Vek::Framework::Utilities
