#pragma once

#include <IParser/State.h>

#include <memory>
#include <unordered_map>
#include <vector>

namespace Vek::Framework::IParser::Native::Internal
{

/// The registered states by id. Small ids, the usual ones, are found without a hash.
class StateTable
{
public:
    /// `state` has an id that is not in the table yet.
    State& Add(std::unique_ptr<State> state);

    /// The state with this id, or null.
    State* Find(unsigned int id) const
    {
        if (id < m_smallIds.size())
            return m_smallIds[id];
        return id < c_smallIdEnd ? nullptr : FindLarge(id);
    }

    /// Throws std::out_of_range for an id that no state has.
    State& Get(unsigned int id) const
    {
        State* const state = Find(id);
        if (state == nullptr)
            ThrowUnknown();
        return *state;
    }

private:
    static constexpr unsigned int c_smallIdEnd = 1024;

    State* FindLarge(unsigned int id) const;
    [[noreturn]] static void ThrowUnknown();

    std::vector<State*> m_smallIds;
    std::unordered_map<unsigned int, State*> m_largeIds;
    std::vector<std::unique_ptr<State>> m_states;
};

} // namespace Vek::Framework::IParser::Native::Internal
