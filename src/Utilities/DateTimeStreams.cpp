#include <Utilities/DateTimeStreams.h>

#include <Utilities/DateTimeText.h>
#include <Utilities/DurationText.h>
#include <Utilities/Internal/AsciiText.h>

#include <ostream>

namespace Vek::Framework::Utilities
{

std::ostream& operator<<(std::ostream& stream, DateTime const& value)
{
    return stream << Internal::ToNarrow(FormatIso8601(value));
}

std::wostream& operator<<(std::wostream& stream, DateTime const& value)
{
    return stream << FormatIso8601(value);
}

std::ostream& operator<<(std::ostream& stream, Duration const& value)
{
    return stream << Internal::ToNarrow(FormatIso8601(value));
}

std::wostream& operator<<(std::wostream& stream, Duration const& value)
{
    return stream << FormatIso8601(value);
}

} // namespace Vek::Framework::Utilities
