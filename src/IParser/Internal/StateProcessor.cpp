#include <IParser/Internal/StateProcessor.h>

#include <IParser/Internal/Ascii.h>
#include <IParser/Internal/NumberText.h>
#include <IParser/Internal/StateToken.h>
#include <Platform/Attributes.h>

#include <algorithm>
#include <limits>

namespace Vek::Framework::IParser::Native
{

using Internal::StateToken;

ParserResult StateProcessor::Process()
{
    FoundToken found{};
    while (ConsumeInMemory(found) && FindToken(found))
        if (!ProcessToken(found, m_isTextAside))
            return GetResult();
    if (m_isEnded)
        return GetResult();

    char const* const end = m_source.GetEnd();
    if (ConsumeText(end, m_isTextAside))
    {
        MovePositionInStream(end, m_isTextAside);
        if (State const& state = *m_state; state.HasEndOfSourceConsumer())
            InvokeConsumer([&state](State::ResultParams& params) { state.GetEndOfSourceConsumer()(params); });
    }
    return GetResult();
}

// The short way of texts and tokens that lie in memory. It begins with no text set aside and goes on while every token
// is told by what is in memory. What has to be looked at otherwise lies behind m_textStart then, and no token begins
// before found.start. False when a consumer ended the run.
bool StateProcessor::ConsumeInMemory(FoundToken& found)
{
    for (;;)
    {
        if (m_state->m_hasBulkConsumer && !ConsumeInBulk())
            return false;
        FoundToken const next = FindTokenInMemory();
        if (next.token == nullptr)
        {
            found.start = next.start;
            return true;
        }
        if (!ProcessToken(next, false))
            return false;
    }
}

// Passes tokens without consumer that have no text before them.
inline StateProcessor::FoundToken StateProcessor::FindTokenInMemory()
{
    using Start = Internal::TokenTree::Start;
    char const* const end = m_source.GetEnd();
    char const* text = m_textStart;
    while (text != end)
    {
        Internal::TokenTree const& tokens = *m_state->m_tokens;
        Start start = tokens.GetStart(*text);
        if (start == Start::Blank)
        {
            text = tokens.SkipBlanks(text + 1, end);
            continue;
        }
        char const* at = text;
        if (start == Start::Nothing)
        {
            at = tokens.FindTokenStart(text + 1, end);
            if (at == end)
                break;
            start = tokens.GetStart(*at);
        }
        if (start == Start::Several)
        {
            m_textStart = text;
            Internal::TokenTree::Match const match = tokens.MatchInMemory(at, end);
            return { at, match.token, match.length };
        }
        StateToken const* const token = tokens.GetSingleByteToken(*at);
        if (text != at || token->action != StateToken::Action::Transition)
        {
            m_textStart = text;
            return { at, token, 1 };
        }
        SwitchState(token->nextStateId);
        ++text;
    }
    m_textStart = text;
    return { end, nullptr, 0 };
}

// The general way, from found.start on. The first place where a token matches wins, and there the longest token.
bool StateProcessor::FindToken(FoundToken& found)
{
    for (char const* at = found.start;;)
    {
        at = m_state->m_tokens->FindTokenStart(at, m_source.GetEnd());
        if (at == m_source.GetEnd())
        {
            if (!ReadOn(at))
                return false;
            continue;
        }
        found = MatchToken(at);
        if (found.token != nullptr)
            return true;
        ++at;
    }
}

StateProcessor::FoundToken StateProcessor::MatchToken(char const*& at)
{
    Internal::TokenTree const& tokens = *m_state->m_tokens;
    FoundToken found{};
    if (tokens.HasCaseSensitiveTokens())
        MatchToken<true>(at, found);
    if (tokens.HasCaseInsensitiveTokens())
        MatchToken<false>(at, found);
    found.start = at;
    return found;
}

// The longest token of one case rule at `at`, if it is longer than the one found.
template <bool isCaseSensitive>
void StateProcessor::MatchToken(char const*& at, FoundToken& found)
{
    auto const fold = [](char c)
    {
        unsigned char const byte = static_cast<unsigned char>(c);
        return isCaseSensitive ? byte : Internal::ToAsciiLower(byte);
    };
    Internal::TokenTree::Node const* node = m_state->m_tokens->GetRoot(fold(*at));
    for (std::size_t length = 1; node != nullptr; ++length)
    {
        StateToken const* const token = node->GetValue();
        if (token != nullptr && token->isCaseSensitive == isCaseSensitive && length > found.length)
        {
            found.token = token;
            found.length = length;
        }
        if (!node->HasChildren())
            break;
        if (length == static_cast<std::size_t>(m_source.GetEnd() - at) && !ReadOn(at))
            break;
        node = node->FindChild(fold(at[length]));
    }
}

// Makes the source longer; false at its end. What lies before `at` is text, whatever follows.
bool StateProcessor::ReadOn(char const*& at)
{
    if (m_source.IsFull())
    {
        SetPendingTextAside(at);
        m_base = m_textStart = at = m_source.MoveToFront(at);
    }
    return m_source.ReadOn();
}

void StateProcessor::SetPendingTextAside(char const* end)
{
    if (!m_isTextAside)
    {
        m_position.Advance(m_base, m_textStart);
        m_asideEnd = m_position;
        m_text.clear();
    }
    if (m_state->m_takesText)
        m_text.append(m_textStart, end);
    m_asideEnd.Advance(m_textStart, end);
    m_isTextAside = m_asideEnd.offset != m_position.offset;
}

// Consumption.

bool StateProcessor::ConsumeInBulk()
{
    if (m_textStart == m_source.GetEnd())
        return true;
    Internal::CallParams params = PrepareCall();
    m_textStart = (*m_state->m_bulkConsumer)(m_textStart, m_source.GetEnd(), params);
    SwitchState(params.nextStateId);
    return IsGoingOn(params);
}

VEK_INLINE bool StateProcessor::ProcessToken(FoundToken found, bool isTextAside)
{
    if (m_textStart != found.start || isTextAside)
    {
        State const* const state = m_state;
        if (!ConsumeText(found.start, isTextAside))
            return false;
        MovePositionInStream(found.start, isTextAside);
        if (m_state != state)
            return true; // the new state recognises the token anew
    }
    if (!ConsumeToken(*found.token))
        return false;
    m_textStart = found.start + found.length;
    return true;
}

VEK_INLINE bool StateProcessor::ConsumeToken(StateToken const& token)
{
    if (token.action == StateToken::Action::Call)
        return InvokeConsumer([&token](State::ResultParams& params) { token.consumer(params); });
    if (token.action == StateToken::Action::Transition)
        SwitchState(token.nextStateId);
    return true;
}

VEK_INLINE bool StateProcessor::ConsumeText(char const* end, bool isTextAside)
{
    State const& state = *m_state;
    if ((m_textStart == end && !isTextAside) || !state.m_takesText)
        return true;
    if (isTextAside || !state.m_takesViewsOnly)
        return ConsumeNumberOrText(end);
    std::string_view const text(m_textStart, static_cast<std::size_t>(end - m_textStart));
    return InvokeConsumer([&](State::ResultParams& params) { (*state.m_textViewConsumer)(text, params); });
}

bool StateProcessor::ConsumeNumberOrText(char const* end)
{
    State const& state = *m_state;
    std::string const& text = GetPendingText(end);
    double number = 0;
    if (*state.m_numberConsumer && Internal::TryGetNumber(text, number))
        return InvokeConsumer([&](State::ResultParams& params) { (*state.m_numberConsumer)(number, params); });
    if (*state.m_textViewConsumer)
        return InvokeConsumer([&](State::ResultParams& params) { (*state.m_textViewConsumer)(text, params); });
    if (*state.m_textConsumer)
        return InvokeConsumer([&](State::ResultParams& params) { (*state.m_textConsumer)(text, params); });
    return true;
}

std::string const& StateProcessor::GetPendingText(char const* end)
{
    if (m_isTextAside)
        m_text.append(m_textStart, end);
    else
        m_text.assign(m_textStart, end);
    return m_text;
}

// In an inner run, one of them may be running further out.
void StateProcessor::ForgetReplacedConsumers(State& state)
{
    if (state.m_activeRuns == 1)
        state.ForgetReplacedConsumers();
}

VEK_INLINE Internal::CallParams StateProcessor::PrepareCall()
{
    if (!m_state->m_replacedConsumers.empty())
        ForgetReplacedConsumers(*m_state);
    return { { m_state->m_id, false, false, GetOffset() }, m_owner };
}

template <class Call>
VEK_INLINE bool StateProcessor::InvokeConsumer(Call const& call)
{
    Internal::CallParams params = PrepareCall();
    call(params);
    if (!IsGoingOn(params))
        return false;
    SwitchState(params.nextStateId);
    return true;
}

VEK_INLINE bool StateProcessor::IsGoingOn(State::ResultParams const& params)
{
    if (!(params.isSyntaxError | params.stop))
        return true;
    m_isEnded = true;
    if (!params.stop)
        m_code = ParserResult::InvalidSyntax;
    return false;
}

VEK_INLINE void StateProcessor::SwitchState(unsigned int id)
{
    if (id != m_state->m_id)
        m_state = &m_states.Get(id);
}

// Position. Bytes are counted where they leave the buffer and when the result is asked for, not one by one.

inline void StateProcessor::MovePositionInStream(char const* end, bool isTextAside)
{
    if (isTextAside)
    {
        m_position = m_asideEnd;
        m_isTextAside = false;
    }
    m_textStart = end;
}

unsigned long long StateProcessor::GetOffset() const
{
    return m_position.offset + static_cast<std::size_t>(m_textStart - m_base);
}

ParserResult StateProcessor::GetResult()
{
    Internal::SourcePosition position = m_position;
    if (!m_isTextAside)
        position.Advance(m_base, m_textStart);
    constexpr unsigned long long c_last = std::numeric_limits<int>::max();
    return ParserResult(m_code, m_state->GetId(), static_cast<int>(std::min(position.line + 1, c_last)),
                        static_cast<int>(std::min(position.column + 1, c_last)));
}

} // namespace Vek::Framework::IParser::Native
