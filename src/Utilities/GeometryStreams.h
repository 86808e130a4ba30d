#pragma once

#include <Utilities/IntRange.h>
#include <Utilities/IntRectangle.h>

#include <iosfwd>

namespace Vek::Framework::Utilities
{

/// A point is (3, -4), a size 30 x 40, a rectangle its corners (10, 20)-(40, 60), a range 1-3, 7 as FormatRange writes
/// it. Whatever the stream's locale, so that logs read alike everywhere. Inserted as a text: width, fill, left and
/// right count, other flags do not.
VEK_API std::ostream& operator<<(std::ostream& stream, IntPoint const& point);
VEK_API std::ostream& operator<<(std::ostream& stream, IntSize const& size);
VEK_API std::ostream& operator<<(std::ostream& stream, IntRectangle const& rectangle);
VEK_API std::ostream& operator<<(std::ostream& stream, IntRange const& range);
VEK_API std::wostream& operator<<(std::wostream& stream, IntPoint const& point);
VEK_API std::wostream& operator<<(std::wostream& stream, IntSize const& size);
VEK_API std::wostream& operator<<(std::wostream& stream, IntRectangle const& rectangle);
VEK_API std::wostream& operator<<(std::wostream& stream, IntRange const& range);

} // namespace Vek::Framework::Utilities
