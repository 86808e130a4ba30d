#pragma once

#include <Utilities/DateTextFault.h>
#include <Utilities/DateTime.h>
#include <VekApi.h>

#include <string>
#include <string_view>

namespace Vek::Framework::Utilities
{

/// 2024-03-05T14:30:05 (ISO 8601), with up to seven fraction digits behind a full stop where they are not 0, so that
/// every point in time comes back. Years from 10000 on have a plus sign: +12024-03-05T14:30:05.
/// Throws ArgumentException from 2^63 ticks on.
VEK_API std::wstring FormatIso8601(DateTime const& value);

/// 05.03.2024 14:30: what is below a minute is dropped. Throws ArgumentException from 2^63 ticks on.
VEK_API std::wstring FormatGerman(DateTime const& value);

/// Reads YYYY-MM-DD, then a time as Thh:mm, Thh:mm:ss or that with one to seven fraction digits behind a full stop or
/// a comma; a date alone is its midnight. Years from 10000 on are a plus sign and five digits. Every field has all of
/// its digits, and nothing may stand around them; 'Z' and offsets are refused.
/// On failure, `value` is unchanged and `fault` tells the first one; on success, `fault` has none.
VEK_API bool TryParseIso8601(std::wstring_view text, DateTime& value, DateTextFault& fault) noexcept;

/// Reads 5.3.2024 or 05.03.2024, then a blank and a time as 14:30, 9:05 or 14:30:05; a date alone is its midnight. A
/// year has four digits, from 10000 on five. The same otherwise.
VEK_API bool TryParseGerman(std::wstring_view text, DateTime& value, DateTextFault& fault) noexcept;

} // namespace Vek::Framework::Utilities
