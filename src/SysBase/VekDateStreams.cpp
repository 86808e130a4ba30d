#include <SysBase/VekDateStreams.h>

#include <SysBase/VekDateText.h>
#include <Utilities/Internal/AsciiText.h>

#include <ostream>

namespace VekSysBase
{

std::ostream& operator<<(std::ostream& stream, VekDateEx const& value)
{
    return stream << Vek::Framework::Utilities::Internal::ToNarrow(FormatIso8601(value));
}

std::wostream& operator<<(std::wostream& stream, VekDateEx const& value)
{
    return stream << FormatIso8601(value);
}

} // namespace VekSysBase
