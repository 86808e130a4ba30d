#pragma once

#include <Utilities/TimeMeasureInfo.h>
#include <VekApi.h>

#include <functional>
#include <string>

namespace Vek::Framework::Utilities
{

/// What TimeMeasure has measured in this process, under its names.
///
/// Order:   that in which the names were first asked for.
/// Clock:   the steady clock of the standard library, unless the caller has set another one.
/// Threads: one at a time, TimeMeasure included; nothing is locked.
/// Unload:  made on first use and freed when the library is unloaded. What is called after that finds no names.
class VEK_API TimeMeasureContainer
{
public:
    TimeMeasureContainer() = delete;

    /// One line for each name, ended by "\n":
    ///     Load 3 measures: 1.500 ns (avg), 4.500 ns (total)
    ///     Save No measures
    /// The average is truncated. Digits are grouped as the user's language does (here that of Austria or Germany; as
    /// the system has it when this is called), by one byte of Windows-1252; a separator that it does not have is left
    /// out. Names come as they are.
    static std::string GetResults();

    /// Calls `visit` with each entry and its name. It may change the entries and measure: names that are new are
    /// visited as well. What it throws passes through.
    static void ForEachMeasure(std::function<void(TimeMeasureInfo&, std::string const&)> visit);

    /// Takes the time from `getter`, in nanoseconds, until another is set or it is reset; the previous one is
    /// destroyed. Measures that are running end by the new clock. `getter` may do this itself while it runs. An empty
    /// one lets every TimeMeasure throw std::bad_function_call.
    static void SetCurrentNanoSecondsGetter(std::function<long long()> getter);

    /// Takes the time from the steady clock again.
    static void ResetCurrentNanoSecondsGetter() noexcept;
};

} // namespace Vek::Framework::Utilities
