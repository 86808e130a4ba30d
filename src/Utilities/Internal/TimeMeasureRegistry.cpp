#include <Utilities/Internal/TimeMeasureRegistry.h>

#include <cstdint>
#include <cstring>
#include <utility>

namespace Vek::Framework::Utilities
{

namespace
{

constinit bool s_isUnloaded = false;

template <class Word>
std::uint64_t Load(char const* bytes) noexcept
{
    Word word{};
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

/// Up to eight bytes as one word; those of short texts that overlap do so for every text of the size.
std::uint64_t LoadRest(char const* bytes, std::size_t size) noexcept
{
    if (size >= 4)
        return Load<std::uint32_t>(bytes) | Load<std::uint32_t>(bytes + size - 4) << 32U;
    if (size == 0)
        return 0;
    return Load<std::uint8_t>(bytes) | Load<std::uint8_t>(bytes + size / 2) << 8U |
           Load<std::uint8_t>(bytes + size - 1) << 16U;
}

constexpr std::uint64_t Mix(std::uint64_t hash, std::uint64_t word) noexcept
{
    std::uint64_t const product = (hash ^ word) * 0x9E3779B97F4A7C15U; // 2^64 divided by the golden ratio
    return product ^ product >> 32U;
}

std::uint64_t GetHash(std::string_view name) noexcept
{
    char const* at = name.data();
    std::size_t left = name.size();
    std::uint64_t hash = left;
    for (; left > 8; left -= 8, at += 8)
        hash = Mix(hash, Load<std::uint64_t>(at));
    return Mix(hash, LoadRest(at, left));
}

constexpr std::size_t c_firstSlots = 64;

} // namespace

constinit TimeMeasureRegistry* TimeMeasureRegistry::s_instance = nullptr;

TimeMeasureRegistry::TimeMeasureRegistry() : m_slots(c_firstSlots)
{
}

TimeMeasureRegistry* TimeMeasureRegistry::MakeInstance()
{
    if (s_isUnloaded)
        return nullptr;
    static TimeMeasureRegistry s_registry;
    s_instance = &s_registry;
    return s_instance;
}

TimeMeasureRegistry::~TimeMeasureRegistry()
{
    // First: the clock is the caller's and may measure when it is destroyed.
    s_isUnloaded = true;
    s_instance = nullptr;
}

TimeMeasureInfo& TimeMeasureRegistry::Get(char const* name)
{
    auto const address = reinterpret_cast<std::uintptr_t>(name);
    Recent& recent = m_recent[(address ^ address >> 6U) % m_recent.size()];
    if (recent.name != name || std::strcmp(name, recent.entry->name.c_str()) != 0)
        recent = { name, &Find(name) }; // a name that is found so has no 0 in it
    return recent.entry->info;
}

TimeMeasureRegistry::Entry& TimeMeasureRegistry::Find(std::string_view name)
{
    std::uint64_t const hash = GetHash(name);
    std::size_t const mask = m_slots.size() - 1;
    for (std::size_t at = hash & mask; m_slots[at].entry != nullptr; at = (at + 1) & mask)
    {
        if (m_slots[at].hash == hash && m_slots[at].entry->name == name)
            return *m_slots[at].entry;
    }
    return Make(name, hash);
}

TimeMeasureRegistry::Entry& TimeMeasureRegistry::Make(std::string_view name, std::uint64_t hash)
{
    if (2 * m_entries.size() >= m_slots.size())
        Enlarge();
    Entry& entry = m_entries.emplace_back(name);
    FindPlace(m_slots, hash) = { hash, &entry };
    return entry;
}

void TimeMeasureRegistry::Enlarge()
{
    std::vector<Slot> slots(2 * m_slots.size());
    for (Slot const& slot : m_slots)
    {
        if (slot.entry != nullptr)
            FindPlace(slots, slot.hash) = slot;
    }
    m_slots = std::move(slots);
}

/// A free one.
TimeMeasureRegistry::Slot& TimeMeasureRegistry::FindPlace(std::vector<Slot>& slots, std::uint64_t hash) noexcept
{
    std::size_t at = hash & (slots.size() - 1);
    while (slots[at].entry != nullptr)
        at = (at + 1) & (slots.size() - 1);
    return slots[at];
}

long long TimeMeasureRegistry::AskTimer() const
{
    auto const timer = m_timer; // it may replace itself
    return timer->GetCurrentNanoseconds();
}

void TimeMeasureRegistry::SetTimer(std::shared_ptr<TimeMeasureTimer const> timer) noexcept
{
    m_timer.swap(timer); // the previous one is destroyed last: it is the caller's and may come back here
}

} // namespace Vek::Framework::Utilities
