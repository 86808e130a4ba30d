#pragma once

#include <IParser/Internal/CallParams.h>
#include <IParser/Internal/SourceBuffer.h>
#include <IParser/Internal/SourcePosition.h>
#include <IParser/Internal/StateTable.h>
#include <IParser/Internal/TokenTree.h>
#include <IParser/ParserResult.h>

#include <string>
#include <utility>

namespace Vek::Framework::IParser::Native
{

/// One run over one source, for `owner`. There must be a state.
///
/// What is consumed ends at m_textStart; the pending text runs from there to the token that is looked for. Text that
/// the buffer has no room for moves to m_text, and m_textStart to the buffer's front.
class StateProcessor
{
public:
    template <class... Source>
    StateProcessor(Internal::StateTable const& states, void* owner, Source&&... source)
        : m_states(states),
          m_state(states.GetInitialState()),
          m_owner(owner),
          m_source(std::forward<Source>(source)...),
          m_base(m_source.GetBegin()),
          m_textStart(m_base)
    {
    }

    ParserResult Process();

private:
    struct FoundToken
    {
        char const* start;
        Internal::StateToken const* token;
        std::size_t length;
    };

    bool ConsumeInMemory(FoundToken& found);
    FoundToken FindTokenInMemory();
    bool FindToken(FoundToken& found);
    FoundToken MatchToken(char const*& at);
    template <bool isCaseSensitive>
    void MatchToken(char const*& at, FoundToken& found);
    bool ReadOn(char const*& at);
    void SetPendingTextAside(char const* end);

    bool ConsumeInBulk();
    // `isTextAside` is m_isTextAside, which the short way knows without a look.
    bool ProcessToken(FoundToken found, bool isTextAside);
    bool ConsumeToken(Internal::StateToken const& token);
    bool ConsumeText(char const* end, bool isTextAside);
    bool ConsumeNumberOrText(char const* end);
    std::string const& GetPendingText(char const* end);
    static void ForgetReplacedConsumers(State& state);
    Internal::CallParams PrepareCall();
    template <class Call>
    bool InvokeConsumer(Call const& call);
    bool IsGoingOn(State::ResultParams const& params);
    void SwitchState(unsigned int id);

    void MovePositionInStream(char const* end, bool isTextAside);
    unsigned long long GetOffset() const;
    ParserResult GetResult();

    Internal::StateTable const& m_states;
    State* m_state;
    void* m_owner;
    Internal::SourceBuffer m_source;

    Internal::SourcePosition m_position; // of m_base, or of the pending text once that was set aside
    Internal::SourcePosition m_asideEnd; // where the text that was set aside ends, which is m_base
    char const* m_base;                  // line and column are counted up to here
    char const* m_textStart;
    bool m_isTextAside = false;
    std::string m_text; // the pending text when set aside, otherwise the last text that was handed out

    bool m_isEnded = false; // by a consumer
    ParserResult::ResultCode m_code = ParserResult::Ok;
};

} // namespace Vek::Framework::IParser::Native
