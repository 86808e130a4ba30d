#pragma once

namespace VekSysBase
{

/// The week of the business dates begins on Monday; Saturday and Sunday are the weekend.
enum class DayOfWeek : int
{
    Monday = 0,
    Tuesday = 1,
    Wednesday = 2,
    Thursday = 3,
    Friday = 4,
    Saturday = 5,
    Sunday = 6,
};

} // namespace VekSysBase
