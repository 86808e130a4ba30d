#pragma once

#include <Utilities/Duration.h>

#include <iosfwd>

namespace Vek::Framework::Utilities
{

/// Writes as FormatIso8601 does, whatever the stream's locale, so that logs and files read alike everywhere. Inserted
/// as a text: width, fill, left and right count. Throws ArgumentException for what has no text; nothing is written
/// then.
VEK_API std::ostream& operator<<(std::ostream& stream, DateTime const& value);
VEK_API std::wostream& operator<<(std::wostream& stream, DateTime const& value);
VEK_API std::ostream& operator<<(std::ostream& stream, Duration const& value);
VEK_API std::wostream& operator<<(std::wostream& stream, Duration const& value);

} // namespace Vek::Framework::Utilities
