#pragma once

#include <IParser/State.h>
#include <IParser/StateParser.h>

#include <memory>
#include <unordered_map>
#include <vector>

namespace Vek::Framework::IParser::Native::Internal
{

/// The registered states by id. Small ids, the usual ones, are found without a hash.
///
/// A table to which nothing is registered any more may be run over by many threads at a time.
class StateTable
{
public:
    /// Makes a state; the first one is where every run begins. Throws ArgumentException for an id that is there
    /// already.
    State& Register(unsigned int id, StateParser::WhiteSpaceHandling whiteSpaceHandling);

    /// Null before the first registration.
    State* GetInitialState() const { return m_states.empty() ? nullptr : m_states.front().get(); }

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

    /// The runs whose consumers may replace consumers of these states; whoever allows that counts them.
    unsigned int& GetActiveRuns() { return m_activeRuns; }

private:
    static constexpr unsigned int c_smallIdEnd = 1024;

    State*& MakeSlot(unsigned int id);
    State* FindLarge(unsigned int id) const;
    [[noreturn]] static void ThrowUnknown();

    std::vector<State*> m_smallIds;
    std::unordered_map<unsigned int, State*> m_largeIds;
    std::vector<std::unique_ptr<State>> m_states;
    unsigned int m_activeRuns = 0;
};

} // namespace Vek::Framework::IParser::Native::Internal
