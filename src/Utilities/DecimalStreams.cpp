#include <Utilities/DecimalStreams.h>

#include <algorithm>
#include <ostream>

namespace Vek::Framework::Utilities
{

std::ostream& operator<<(std::ostream& stream, Decimal const& value)
{
    std::wstring const wide = value.ToString(L'.', {});
    std::string narrow(wide.size(), ' ');
    std::transform(wide.begin(), wide.end(), narrow.begin(), [](wchar_t unit) { return static_cast<char>(unit); });
    return stream << narrow;
}

std::wostream& operator<<(std::wostream& stream, Decimal const& value)
{
    return stream << value.ToString(L'.', {});
}

} // namespace Vek::Framework::Utilities
