#include <IParser/Internal/StateProcessor.h>

#include <IParser/Internal/Ascii.h>
#include <IParser/Internal/NumberText.h>
#include <IParser/Internal/StateToken.h>

#include <algorithm>
#include <limits>

namespace Vek::Framework::IParser::Native
{

using Internal::StateToken;

ParserResult StateProcessor::Process()
{
    while (ConsumeInBulk() && FindNextToken())
        if (!ProcessToken())
            return GetResult();
    if (m_isEnded)
        return GetResult();

    char const* const end = m_source.GetEnd();
    if (ConsumeText(end))
    {
        MovePositionInStream(end);
        if (State const& state = *m_state; state.HasEndOfSourceConsumer())
            InvokeConsumer([&state](State::ResultParams& params) { state.GetEndOfSourceConsumer()(params); });
    }
    return GetResult();
}

// Recognition. The first place where a token matches wins, and there the longest token. It begins with no text set
// aside: what was pending has been consumed.

bool StateProcessor::FindNextToken()
{
    PassTokensWithoutConsumer();

    Internal::TokenTree const& tokens = *m_state->m_tokens;
    char const* const end = m_source.GetEnd();
    char const* const at = tokens.FindTokenStart(m_textStart, end);
    m_token = at == end ? nullptr : tokens.GetSingleByteToken(*at);
    if (m_token == nullptr)
        return FindNextTokenFrom(at);
    m_tokenStart = at;
    m_tokenLength = 1;
    return true;
}

// The short way over one-byte tokens that follow each other without text between them.
void StateProcessor::PassTokensWithoutConsumer()
{
    char const* const end = m_source.GetEnd();
    while (m_textStart != end)
    {
        Internal::TokenTree const& tokens = *m_state->m_tokens;
        StateToken const* const token = tokens.GetSingleByteToken(*m_textStart);
        if (token == nullptr || token->action == StateToken::Action::Call)
            return;
        if (token->action == StateToken::Action::Transition)
        {
            SwitchState(token->nextStateId);
            ++m_textStart;
        }
        else
            m_textStart = tokens.SkipBlanks(m_textStart, end);
    }
}

bool StateProcessor::FindNextTokenFrom(char const* at)
{
    for (;;)
    {
        at = m_state->m_tokens->FindTokenStart(at, m_source.GetEnd());
        if (at == m_source.GetEnd())
        {
            if (!ReadOn(at))
                return false;
            continue;
        }
        m_token = MatchToken(at);
        if (m_token != nullptr)
        {
            m_tokenStart = at;
            return true;
        }
        ++at;
    }
}

StateToken* StateProcessor::MatchToken(char const*& at)
{
    Internal::TokenTree const& tokens = *m_state->m_tokens;
    m_tokenLength = 0;
    StateToken* const exact = tokens.HasCaseSensitiveTokens() ? MatchToken<true>(at) : nullptr;
    if (!tokens.HasCaseInsensitiveTokens())
        return exact;
    StateToken* const folded = MatchToken<false>(at);
    return folded != nullptr ? folded : exact;
}

// The longest token of one case rule at `at`, if it is longer than m_tokenLength, which it then sets.
template <bool isCaseSensitive>
StateToken* StateProcessor::MatchToken(char const*& at)
{
    auto const fold = [](char c)
    {
        unsigned char const byte = static_cast<unsigned char>(c);
        return isCaseSensitive ? byte : Internal::ToAsciiLower(byte);
    };
    StateToken* match = nullptr;
    Internal::TokenTree::Node const* node = m_state->m_tokens->GetRoot(fold(*at));
    for (std::size_t length = 1; node != nullptr; ++length)
    {
        StateToken* const token = node->GetValue();
        if (token != nullptr && token->isCaseSensitive == isCaseSensitive && length > m_tokenLength)
        {
            match = token;
            m_tokenLength = length;
        }
        if (!node->HasChildren())
            break;
        if (length == static_cast<std::size_t>(m_source.GetEnd() - at) && !ReadOn(at))
            break;
        node = node->FindChild(fold(at[length]));
    }
    return match;
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
    State::BulkConsumer const& consumer = *m_state->m_bulkConsumer;
    if (!consumer || m_textStart == m_source.GetEnd())
        return true;
    Internal::CallParams params = PrepareCall();
    m_textStart = consumer(m_textStart, m_source.GetEnd(), params);
    SwitchState(params.nextStateId);
    return IsGoingOn(params);
}

bool StateProcessor::ProcessToken()
{
    if (m_textStart != m_tokenStart || m_isTextAside)
    {
        State const* const state = m_state;
        if (!ConsumeText(m_tokenStart))
            return false;
        MovePositionInStream(m_tokenStart);
        if (m_state != state)
            return true; // the new state recognises the token anew
    }
    if (!ConsumeToken())
        return false;
    m_textStart = m_tokenStart + m_tokenLength;
    return true;
}

bool StateProcessor::ConsumeToken()
{
    StateToken const& token = *m_token;
    switch (token.action)
    {
    case StateToken::Action::Skip:
        return true;
    case StateToken::Action::Transition:
        SwitchState(token.nextStateId);
        return true;
    case StateToken::Action::Call:
        break;
    }
    return InvokeConsumer([&token](State::ResultParams& params) { token.consumer(params); });
}

bool StateProcessor::ConsumeText(char const* end)
{
    State const& state = *m_state;
    if ((m_textStart == end && !m_isTextAside) || !state.m_takesText)
        return true;
    if (m_isTextAside || !*state.m_textViewConsumer || *state.m_numberConsumer)
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

Internal::CallParams StateProcessor::PrepareCall()
{
    // In an inner run, one of them may be running further out.
    if (!m_state->m_replacedConsumers.empty() && m_state->m_activeRuns == 1)
        m_state->ForgetReplacedConsumers();
    return { { m_state->m_id, false, false, GetOffset() }, m_owner };
}

template <class Call>
bool StateProcessor::InvokeConsumer(Call const& call)
{
    Internal::CallParams params = PrepareCall();
    call(params);
    if (!IsGoingOn(params))
        return false;
    SwitchState(params.nextStateId);
    return true;
}

bool StateProcessor::IsGoingOn(State::ResultParams const& params)
{
    if (params.isSyntaxError && !params.stop)
        m_code = ParserResult::InvalidSyntax;
    m_isEnded = params.stop || params.isSyntaxError;
    return !m_isEnded;
}

void StateProcessor::SwitchState(unsigned int id)
{
    if (id != m_state->m_id)
        m_state = &m_states.Get(id);
}

// Position. Bytes are counted where they leave the buffer and when the result is asked for, not one by one.

void StateProcessor::MovePositionInStream(char const* end)
{
    if (m_isTextAside)
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
