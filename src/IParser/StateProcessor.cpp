#include <IParser/StateProcessor.h>

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
    while (FindNextToken())
        if (!ProcessToken())
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

// Recognition. The first place where a token matches wins, and there the longest token.

bool StateProcessor::FindNextToken()
{
    Internal::TokenTree const& tokens = *m_state->m_tokens;
    if (!m_isTextAside)
        m_textStart = tokens.SkipBlanks(m_textStart, m_source.GetEnd());

    char const* at = m_textStart;
    for (;;)
    {
        at = tokens.FindTokenStart(at, m_source.GetEnd());
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
    if (m_state->HasTextConsumer() || m_state->HasNumberConsumer())
        m_text.append(m_textStart, end);
    m_asideEnd.Advance(m_textStart, end);
    m_isTextAside = m_asideEnd.offset != m_position.offset;
}

// Consumption.

bool StateProcessor::ProcessToken()
{
    State const* const state = m_state;
    char const* const tokenStart = m_tokenStart;
    if (!ConsumeText(tokenStart))
        return false;
    MovePositionInStream(tokenStart);
    if (m_state != state)
        return true; // the new state recognises the token anew

    char const* const tokenEnd = tokenStart + m_tokenLength;
    if (!ConsumeToken())
        return false;
    MovePositionInStream(tokenEnd);
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
    if ((m_textStart == end && !m_isTextAside) || !(state.HasTextConsumer() || state.HasNumberConsumer()))
        return true;

    std::string const& text = GetPendingText(end);
    double number = 0;
    if (state.HasNumberConsumer() && Internal::TryGetNumber(text, number))
        return InvokeConsumer([&](State::ResultParams& params) { state.GetNumberConsumer()(number, params); });
    if (!state.HasTextConsumer())
        return true;
    return InvokeConsumer([&](State::ResultParams& params) { state.GetTextConsumer()(text, params); });
}

std::string const& StateProcessor::GetPendingText(char const* end)
{
    if (m_isTextAside)
        m_text.append(m_textStart, end);
    else
        m_text.assign(m_textStart, end);
    return m_text;
}

template <class Call>
bool StateProcessor::InvokeConsumer(Call const& call)
{
    State::ResultParams params { m_state->GetId(), false, false, GetOffset() };
    call(params);
    if (params.stop)
        return false;
    if (params.isSyntaxError)
    {
        m_code = ParserResult::InvalidSyntax;
        return false;
    }
    SwitchState(params.nextStateId);
    return true;
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
    return m_isTextAside ? m_position.offset : m_position.offset + static_cast<std::size_t>(m_textStart - m_base);
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
