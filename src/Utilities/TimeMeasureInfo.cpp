#include <Utilities/TimeMeasureInfo.h>

namespace Vek::Framework::Utilities
{

void TimeMeasureInfo::AddMeasure(long long nanoseconds) noexcept
{
    m_last = nanoseconds;
    m_total =
        static_cast<long long>(static_cast<unsigned long long>(m_total) + static_cast<unsigned long long>(nanoseconds));
    ++m_count;
}

void TimeMeasureInfo::Reset() noexcept
{
    *this = TimeMeasureInfo();
}

double TimeMeasureInfo::ConvertFromNanoSecondsToSeconds(long long nanoseconds) noexcept
{
    return static_cast<double>(nanoseconds) / 1e9;
}

} // namespace Vek::Framework::Utilities
