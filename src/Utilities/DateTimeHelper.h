#pragma once

#include <Utilities/Duration.h>
#include <VekApi.h>

#include <ctime>

namespace Vek::Framework::Utilities
{

/// Comparison and addition for callers that hold a tm, in local time.
class VEK_API DateTimeHelper
{
public:
    /// A tm with every field 0.
    struct ZeroInitializationTm : tm
    {
        constexpr ZeroInitializationTm() noexcept : tm() {}
    };

    DateTimeHelper() = delete;

    static tm const& Zero() noexcept;

    /// -1, 0 or 1 by year, month, day, hour, minute and second as they stand, in range or not; the day of the week and
    /// of the year and tm_isdst do not count.
    static int CompareTo(tm const& a, tm const& b) noexcept;
    static bool Equals(tm const& a, tm const& b) noexcept;

    /// First the exact part, rounded half away from zero to seconds, through the runtime's local time; then the months,
    /// put onto the fields and normalised: 31 January and one month is 2 or 3 March.
    ///
    /// tm_isdst is an input, and the months leave it as the exact part made it: in Vienna 31 January, 12:00, and six
    /// months is 31 July, 13:00. DateTime keeps the clock and the month's end; use it where neither is wanted.
    /// Throws ArgumentException if a step leads before 1970 or after 3000 (UTC), or the runtime refuses.
    static tm Add(tm const& value, Duration const& duration);
};

} // namespace Vek::Framework::Utilities
