#pragma once

#include <Utilities/Duration.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities
{

/// Both parts as they are, after ISO 8601: P1M, PT172800S, P-1MT-1296000.5S, PT0S; behind its start and a slash if
/// there is one: 2024-01-31T00:00:00/P1M. A NaN and an Infinity stand in the place of the seconds. For logs and
/// messages. Throws ArgumentException for a start from 2^63 ticks on.
VEK_API std::wstring FormatIso8601(Duration const& value);

} // namespace Vek::Framework::Utilities
