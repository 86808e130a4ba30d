#pragma once

#include <VekApi.h>

namespace Vek::Framework::Utilities
{

/// What was measured under one name: the last measure, the sum and the number of all.
///
/// Unit:  nanoseconds. A sum beyond 64 bits (292 years) wraps around.
/// Shape: a plain value. The library keeps one for each name as long as it is loaded; see TimeMeasureContainer.
class VEK_API TimeMeasureInfo
{
public:
    constexpr TimeMeasureInfo() noexcept = default;

    constexpr void AddMeasure(long long nanoseconds) noexcept
    {
        m_last = nanoseconds;
        m_total = static_cast<long long>(static_cast<unsigned long long>(m_total) +
                                         static_cast<unsigned long long>(nanoseconds));
        ++m_count;
    }

    /// As freshly made.
    void Reset() noexcept;

    long long GetLastResultInNanoSeconds() const noexcept { return m_last; }
    long long GetTotalTimeInNanoSeconds() const noexcept { return m_total; }
    long long GetMeasuresCount() const noexcept { return m_count; }

    /// The value as a double, divided by 1e9.
    static double ConvertFromNanoSecondsToSeconds(long long nanoseconds) noexcept;

private:
    long long m_last = 0;
    long long m_total = 0;
    long long m_count = 0;
};

} // namespace Vek::Framework::Utilities
