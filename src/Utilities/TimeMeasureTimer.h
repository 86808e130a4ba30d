#pragma once

#include <VekApi.h>

#include <functional>

namespace Vek::Framework::Utilities
{

/// A time source of the caller's: a function that answers the current time in nanoseconds, from any beginning.
///
/// Shape: the function, and nothing else; copied and moved as it is.
class VEK_API TimeMeasureTimer
{
public:
    explicit TimeMeasureTimer(std::function<long long()> getter);
    TimeMeasureTimer(TimeMeasureTimer const&);
    TimeMeasureTimer(TimeMeasureTimer&&) noexcept;
    TimeMeasureTimer& operator=(TimeMeasureTimer const&);
    TimeMeasureTimer& operator=(TimeMeasureTimer&&) noexcept;
    ~TimeMeasureTimer();

    /// What the function answers. An empty one throws std::bad_function_call; what it throws itself passes through.
    long long GetCurrentNanoseconds() const;

private:
    std::function<long long()> m_getter;
};

} // namespace Vek::Framework::Utilities
