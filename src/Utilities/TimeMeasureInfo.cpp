#include <Utilities/TimeMeasureInfo.h>

namespace Vek::Framework::Utilities
{

void TimeMeasureInfo::Reset() noexcept
{
    *this = TimeMeasureInfo();
}

double TimeMeasureInfo::ConvertFromNanoSecondsToSeconds(long long nanoseconds) noexcept
{
    return static_cast<double>(nanoseconds) / 1e9;
}

} // namespace Vek::Framework::Utilities
