#pragma once

#include <Utilities/TimeMeasureInfo.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities
{

/// Measures the time from its construction to its destruction and adds it to what is kept under a name.
///
///     {
///         TimeMeasure const measure("Load");
///         ...
///     }
///     log.Info(..., TimeMeasureContainer::GetResults());
///
/// Names:   bytes, compared exactly. The first measure of a name makes its entry, which stays; a further one allocates
///          nothing and costs little more than reading the clock twice.
/// Nesting: measures of one name may be nested; each adds its own time when it ends.
/// Clock:   that of TimeMeasureContainer, asked once the entry is found and again at the end.
/// Errors:  what the clock throws at construction passes through, and the entry stays without the measure; at
///          destruction the measure is dropped.
/// Threads: one at a time for all measures of the process; nothing is locked.
/// Unload:  a measure that begins or ends when the library has been unloaded, as one in a static object of the program
///          may, is counted nowhere.
class VEK_API TimeMeasure
{
public:
    /// Throws ArgumentException for a null pointer.
    explicit TimeMeasure(char const* name);
    explicit TimeMeasure(std::string const& name);
    TimeMeasure(TimeMeasure const&) = delete;
    TimeMeasure& operator=(TimeMeasure const&) = delete;
    ~TimeMeasure();

    /// The entry of its name, which stays where it is as long as the library is loaded.
    TimeMeasureInfo const& GetMeasureInfo() const noexcept;

private:
    long long m_start = 0;
    TimeMeasureInfo* m_info = nullptr; // null for a measure that is counted nowhere
};

} // namespace Vek::Framework::Utilities
