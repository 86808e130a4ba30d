#include <Utilities/TimeMeasureTimer.h>

#include <utility>

namespace Vek::Framework::Utilities
{

TimeMeasureTimer::TimeMeasureTimer(std::function<long long()> getter) : m_getter(std::move(getter))
{
}
TimeMeasureTimer::TimeMeasureTimer(TimeMeasureTimer const&) = default;
TimeMeasureTimer::TimeMeasureTimer(TimeMeasureTimer&&) noexcept = default;
TimeMeasureTimer& TimeMeasureTimer::operator=(TimeMeasureTimer const&) = default;
TimeMeasureTimer& TimeMeasureTimer::operator=(TimeMeasureTimer&&) noexcept = default;
TimeMeasureTimer::~TimeMeasureTimer() = default;

long long TimeMeasureTimer::GetCurrentNanoseconds() const
{
    return m_getter();
}

} // namespace Vek::Framework::Utilities
