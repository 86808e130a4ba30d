#include <Utilities/TimeMeasureContainer.h>

#include <Utilities/Internal/GroupedNumber.h>
#include <Utilities/Internal/TimeMeasureRegistry.h>

#include <utility>

namespace Vek::Framework::Utilities
{

namespace
{

std::string Describe(TimeMeasureInfo const& info, Platform::DigitGrouping const& grouping)
{
    long long const count = info.GetMeasuresCount();
    if (count == 0)
        return "No measures";
    long long const total = info.GetTotalTimeInNanoSeconds();
    return FormatGrouped(count, grouping) + " measures: " + FormatGrouped(total / count, grouping) + " ns (avg), " +
           FormatGrouped(total, grouping) + " ns (total)";
}

} // namespace

std::string TimeMeasureContainer::GetResults()
{
    std::string results;
    Platform::DigitGrouping const grouping = Platform::GetUserDigitGrouping();
    if (TimeMeasureRegistry* const registry = TimeMeasureRegistry::GetInstance())
        registry->ForEach([&](TimeMeasureInfo const& info, std::string const& name)
                          { results.append(name).append(" ").append(Describe(info, grouping)).append("\n"); });
    return results;
}

void TimeMeasureContainer::ForEachMeasure(std::function<void(TimeMeasureInfo&, std::string const&)> visit)
{
    if (TimeMeasureRegistry* const registry = TimeMeasureRegistry::GetInstance())
        registry->ForEach(visit);
}

void TimeMeasureContainer::SetCurrentNanoSecondsGetter(std::function<long long()> getter)
{
    if (TimeMeasureRegistry* const registry = TimeMeasureRegistry::GetInstance())
        registry->SetTimer(std::make_shared<TimeMeasureTimer const>(std::move(getter)));
}

void TimeMeasureContainer::ResetCurrentNanoSecondsGetter() noexcept
{
    if (TimeMeasureRegistry* const registry = TimeMeasureRegistry::GetInstance())
        registry->SetTimer(nullptr);
}

} // namespace Vek::Framework::Utilities
