#pragma once

#include <Utilities/TimeMeasureInfo.h>
#include <Utilities/TimeMeasureTimer.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Vek::Framework::Utilities
{

/// The one registry of measures.
class TimeMeasureRegistry
{
public:
    TimeMeasureRegistry(TimeMeasureRegistry const&) = delete;
    TimeMeasureRegistry& operator=(TimeMeasureRegistry const&) = delete;
    ~TimeMeasureRegistry();

    /// Made on first use; null once the library has been unloaded.
    static TimeMeasureRegistry* GetInstance() { return s_instance != nullptr ? s_instance : MakeInstance(); }

    /// Null when there is none.
    static TimeMeasureRegistry* FindInstance() noexcept { return s_instance; }

    /// The entry of `name`, made if it is not there.
    TimeMeasureInfo& Get(std::string_view name) { return Find(name).info; }

    /// The same for a text that ends with a 0. Mostly it is a literal that was asked for before from the same place.
    TimeMeasureInfo& Get(char const* name);

    /// Calls `visit` with every entry in the order of their making, those that it makes itself included.
    template <class Visit>
    void ForEach(Visit const& visit)
    {
        for (std::size_t at = 0; at < m_entries.size(); ++at)
            visit(m_entries[at].info, m_entries[at].name);
    }

    long long GetCurrentNanoSeconds() const
    {
        if (m_timer != nullptr)
            return AskTimer();
        return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
    }

    /// Null for the steady clock.
    void SetTimer(std::shared_ptr<TimeMeasureTimer const> timer) noexcept;

private:
    struct Entry
    {
        explicit Entry(std::string_view entryName) : name(entryName) {}

        std::string name;
        TimeMeasureInfo info;
    };

    /// Names are found by their hash in the place that it asks for or one of the next; half of all places are free.
    struct Slot
    {
        std::uint64_t hash = 0;
        Entry* entry = nullptr; // null for a free place
    };

    /// Where a name was the last time, and what it was: the text there may be another one by now.
    struct Recent
    {
        char const* name = nullptr;
        Entry* entry = nullptr;
    };

    static TimeMeasureRegistry* MakeInstance();
    TimeMeasureRegistry();
    long long AskTimer() const;
    Entry& Find(std::string_view name);
    Entry& Make(std::string_view name, std::uint64_t hash);
    void Enlarge();
    static Slot& FindPlace(std::vector<Slot>& slots, std::uint64_t hash) noexcept;

    std::deque<Entry> m_entries; // whose elements stay where they are
    std::vector<Slot> m_slots;   // a power of two
    std::array<Recent, 64> m_recent;
    std::shared_ptr<TimeMeasureTimer const> m_timer;

    static constinit TimeMeasureRegistry* s_instance; // known before and after the registry's own life
};

} // namespace Vek::Framework::Utilities
