#include <Utilities/Internal/TimeMeasureRegistry.h>

#include <chrono>
#include <cstdint>
#include <cstring>

namespace Vek::Framework::Utilities
{

namespace
{

// Known before and after the registry's own life.
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

} // namespace

std::size_t TimeMeasureRegistry::NameHash::operator()(std::string_view name) const noexcept
{
    char const* at = name.data();
    std::size_t left = name.size();
    std::uint64_t hash = left;
    for (; left > 8; left -= 8, at += 8)
        hash = Mix(hash, Load<std::uint64_t>(at));
    return Mix(hash, LoadRest(at, left));
}

TimeMeasureRegistry* TimeMeasureRegistry::GetInstance()
{
    if (s_isUnloaded)
        return nullptr;
    static TimeMeasureRegistry s_instance;
    return &s_instance;
}

TimeMeasureRegistry::~TimeMeasureRegistry()
{
    s_isUnloaded = true; // the clock is the caller's and may measure when it is destroyed
}

TimeMeasureInfo& TimeMeasureRegistry::Get(std::string_view name)
{
    auto const found = m_entries.find(name);
    return found != m_entries.end() ? found->second.info : Make(name);
}

TimeMeasureInfo& TimeMeasureRegistry::Make(std::string_view name)
{
    Node& node = *m_entries.try_emplace(std::string(name)).first;
    (m_last == nullptr ? m_first : m_last->second.next) = &node;
    m_last = &node;
    return node.second.info;
}

long long TimeMeasureRegistry::GetCurrentNanoSeconds() const
{
    if (m_timer != nullptr)
    {
        auto const timer = m_timer; // it may replace itself
        return timer->GetCurrentNanoseconds();
    }
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void TimeMeasureRegistry::SetTimer(std::shared_ptr<TimeMeasureTimer const> timer) noexcept
{
    m_timer.swap(timer); // the previous one is destroyed last: it is the caller's and may come back here
}

} // namespace Vek::Framework::Utilities
