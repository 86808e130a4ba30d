#pragma once

#include <Utilities/Decimal.h>

#include <iosfwd>

namespace Vek::Framework::Utilities
{

/// Writes as Decimal::ToString does with a full stop and without grouping: all digits, no exponent, whatever the
/// stream's locale, so that logs and files read alike everywhere. Inserted as a text: width, fill, left and right
/// count, precision and other flags do not.
VEK_API std::ostream& operator<<(std::ostream& stream, Decimal const& value);
VEK_API std::wostream& operator<<(std::wostream& stream, Decimal const& value);

} // namespace Vek::Framework::Utilities
