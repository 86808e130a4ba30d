#include <Utilities/TimeMeasure.h>

#include <Exceptions/ArgumentException.h>
#include <Utilities/Internal/TimeMeasureRegistry.h>

namespace Vek::Framework::Utilities
{

namespace
{

constinit TimeMeasureInfo const s_nowhere; // what measures have that are counted nowhere

char const* RequireName(char const* name)
{
    if (name == nullptr)
        throw ArgumentException();
    return name;
}

/// The entry is there before the clock is read: looking it up is no part of the measure.
template <class Name>
TimeMeasureInfo* Begin(Name const& name, long long& start)
{
    TimeMeasureRegistry* const registry = TimeMeasureRegistry::GetInstance();
    if (registry == nullptr)
        return nullptr;
    TimeMeasureInfo& info = registry->Get(name);
    start = registry->GetCurrentNanoSeconds();
    return &info;
}

void End(TimeMeasureRegistry const& registry, TimeMeasureInfo& info, long long start) noexcept
{
    try
    {
        auto const now = static_cast<unsigned long long>(registry.GetCurrentNanoSeconds());
        info.AddMeasure(static_cast<long long>(now - static_cast<unsigned long long>(start)));
    }
    catch (...) // a destructor has nobody to tell: the measure is dropped
    {
    }
}

} // namespace

TimeMeasure::TimeMeasure(char const* name) : m_info(Begin(RequireName(name), m_start))
{
}
TimeMeasure::TimeMeasure(std::string const& name) : m_info(Begin(name, m_start))
{
}

TimeMeasure::~TimeMeasure()
{
    TimeMeasureRegistry const* const registry = TimeMeasureRegistry::FindInstance();
    if (registry != nullptr && m_info != nullptr)
        End(*registry, *m_info, m_start);
}

TimeMeasureInfo const& TimeMeasure::GetMeasureInfo() const noexcept
{
    return m_info != nullptr && TimeMeasureRegistry::FindInstance() != nullptr ? *m_info : s_nowhere;
}

} // namespace Vek::Framework::Utilities
