#include <IParser/Internal/StateTable.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Vek::Framework::IParser::Native::Internal
{

State& StateTable::Add(std::unique_ptr<State> state)
{
    unsigned int const id = state->GetId();
    State& added = *m_states.emplace_back(std::move(state));
    if (id >= c_smallIdEnd)
        m_largeIds.emplace(id, &added);
    else
    {
        m_smallIds.resize(std::max<std::size_t>(m_smallIds.size(), id + 1));
        m_smallIds[id] = &added;
    }
    return added;
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
