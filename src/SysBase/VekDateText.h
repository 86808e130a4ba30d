#pragma once

#include <SysBase/VekDateEx.h>
#include <Utilities/DateTextFault.h>
#include <VekApi.h>

#include <string>
#include <string_view>

namespace VekSysBase
{

using Vek::Framework::Utilities::DateTextError;
using Vek::Framework::Utilities::DateTextFault;

/// 2024-03-05 (ISO 8601); years from 10000 on have a plus sign: +12024-03-05. The zero date is the empty text.
/// Throws ArgumentException for another invalid date.
VEK_API std::wstring FormatIso8601(VekDateEx const& value);

/// 05.03.2024. The same otherwise, but for the plus sign.
VEK_API std::wstring FormatGerman(VekDateEx const& value);

/// Reads YYYY-MM-DD with all of its digits, a plus sign and five digits for years from 10000 on, or the empty text,
/// which is the zero date. Nothing else may stand there, no time of day either. On failure, `value` is unchanged and
/// `fault` tells the first one; on success, `fault` has none.
VEK_API bool TryParseIso8601(std::wstring_view text, VekDateEx& value, DateTextFault& fault) noexcept;

/// Reads 5.3.2024 or 05.03.2024, years with four digits, from 10000 on with five. The same otherwise.
VEK_API bool TryParseGerman(std::wstring_view text, VekDateEx& value, DateTextFault& fault) noexcept;

} // namespace VekSysBase
