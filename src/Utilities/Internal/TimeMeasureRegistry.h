#pragma once

#include <Utilities/TimeMeasureInfo.h>
#include <Utilities/TimeMeasureTimer.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace Vek::Framework::Utilities
{

/// The one registry of measures.
class TimeMeasureRegistry
{
public:
    TimeMeasureRegistry(TimeMeasureRegistry const&) = delete;
    TimeMeasureRegistry& operator=(TimeMeasureRegistry const&) = delete;
    ~TimeMeasureRegistry();

    /// Null once the library has been unloaded.
    static TimeMeasureRegistry* GetInstance();

    /// The entry of `name`, made if it is not there.
    TimeMeasureInfo& Get(std::string_view name);

    /// Calls `visit` with every entry in the order of their making, those that it makes itself included.
    template <class Visit>
    void ForEach(Visit const& visit)
    {
        for (Node* node = m_first; node != nullptr; node = node->second.next)
            visit(node->second.info, node->first);
    }

    long long GetCurrentNanoSeconds() const;

    /// Null for the steady clock.
    void SetTimer(std::shared_ptr<TimeMeasureTimer const> timer) noexcept;

private:
    struct Entry;
    using Node = std::pair<std::string const, Entry>;
    struct Entry
    {
        TimeMeasureInfo info;
        Node* next = nullptr; // in the order of their making
    };

    struct NameHash
    {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const noexcept;
    };

    TimeMeasureRegistry() = default;
    TimeMeasureInfo& Make(std::string_view name);

    std::unordered_map<std::string, Entry, NameHash, std::equal_to<>> m_entries; // whose nodes stay where they are
    Node* m_first = nullptr;
    Node* m_last = nullptr;
    std::shared_ptr<TimeMeasureTimer const> m_timer;
};

} // namespace Vek::Framework::Utilities
