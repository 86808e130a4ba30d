#include <IParser/Internal/StateTable.h>

#include <Exceptions/ArgumentException.h>

#include <algorithm>
#include <stdexcept>

namespace Vek::Framework::IParser::Native::Internal
{

State& StateTable::Register(unsigned int id, StateParser::WhiteSpaceHandling whiteSpaceHandling)
{
    if (Find(id) != nullptr)
        throw ArgumentException();
    std::unique_ptr<State> state(new State(id, m_activeRuns));
    if (whiteSpaceHandling == StateParser::SkipWhiteSpace)
        for (char const* const blank : { " ", "\t", "\r", "\n" })
            state->RegisterSkipToken(blank, State::CaseSensitive);

    State*& slot = MakeSlot(id);
    slot = m_states.emplace_back(std::move(state)).get();
    return *slot;
}

// A slot that stays empty, for want of memory, is as good as none.
State*& StateTable::MakeSlot(unsigned int id)
{
    if (id >= c_smallIdEnd)
        return m_largeIds[id];
    m_smallIds.resize(std::max<std::size_t>(m_smallIds.size(), id + 1));
    return m_smallIds[id];
}

State* StateTable::FindLarge(unsigned int id) const
{
    auto const found = m_largeIds.find(id);
    return found == m_largeIds.end() ? nullptr : found->second;
}

void StateTable::ThrowUnknown()
{
    throw std::out_of_range("invalid unordered_map<K, T> key");
}

} // namespace Vek::Framework::IParser::Native::Internal
