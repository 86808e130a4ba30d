#pragma once

namespace Vek::Framework::Utilities
{

/// The weeks of SYSTEMTIME and of tm_wday; ISO 8601 begins them with Monday and calls Sunday 7.
enum class DayOfWeek : unsigned char
{
    Sunday = 0,
    Monday = 1,
    Tuesday = 2,
    Wednesday = 3,
    Thursday = 4,
    Friday = 5,
    Saturday = 6,
};

} // namespace Vek::Framework::Utilities
