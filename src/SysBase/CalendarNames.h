#pragma once

#include <SysBase/DayOfWeek.h>
#include <VekApi.h>

#include <string_view>

namespace VekSysBase
{

/// As they are called in Austria: "J\u00E4nner", "Februar" ... Empty for a month outside 1 to 12. Valid for ever.
VEK_API std::wstring_view GetMonatsname(int month) noexcept;

/// Montag ... Sonntag, and Mo ... So. Empty for any other value.
VEK_API std::wstring_view GetWochentagsname(DayOfWeek dayOfWeek) noexcept;
VEK_API std::wstring_view GetWochentagskuerzel(DayOfWeek dayOfWeek) noexcept;

} // namespace VekSysBase
