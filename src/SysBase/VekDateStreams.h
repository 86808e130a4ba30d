#pragma once

#include <SysBase/VekDateEx.h>

#include <iosfwd>

namespace VekSysBase
{

/// Writes as FormatIso8601 does, whatever the stream's locale: 2024-03-05, nothing for the zero date. Inserted as a
/// text: width, fill, left and right count. Throws ArgumentException for an invalid date; nothing is written then.
VEK_API std::ostream& operator<<(std::ostream& stream, VekDateEx const& value);
VEK_API std::wostream& operator<<(std::wostream& stream, VekDateEx const& value);

} // namespace VekSysBase
