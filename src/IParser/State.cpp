#include <IParser/State.h>

#include <Exceptions/ArgumentException.h>
#include <IParser/Internal/Ascii.h>
#include <IParser/Internal/StateToken.h>
#include <IParser/Internal/TokenTree.h>

#include <utility>

namespace Vek::Framework::IParser::Native
{

namespace
{

std::unique_ptr<Internal::StateToken> MakeToken(std::string const& text, State::TokenConsumer consumer,
                                                State::CaseSensitivityType caseSensitivity)
{
    auto token = std::make_unique<Internal::StateToken>();
    token->consumer = std::move(consumer);
    token->text = text;
    token->isCaseSensitive = caseSensitivity == State::CaseSensitive;
    token->key = token->isCaseSensitive ? text : Internal::ToAsciiLower(text);
    return token;
}

} // namespace

State::State(unsigned int id, unsigned int const& activeRuns)
    : m_id(id),
      m_activeRuns(activeRuns),
      m_textConsumer(std::make_shared<TextConsumer const>()),
      m_textViewConsumer(std::make_shared<TextViewConsumer const>()),
      m_numberConsumer(std::make_shared<NumberConsumer const>()),
      m_bulkConsumer(std::make_shared<BulkConsumer const>()),
      m_endOfSourceConsumer(std::make_shared<EndOfSourceConsumer const>()),
      m_tokens(std::make_unique<Internal::TokenTree>())
{
}

State::~State() = default;

unsigned int State::GetId() const noexcept
{
    return m_id;
}

// Called when no consumer of this parser is running. What a consumer has captured may register another one as it ends.
void State::ForgetReplacedConsumers()
{
    std::vector<std::shared_ptr<void const>>().swap(m_replacedConsumers);
}

template <class Consumer>
void State::Replace(std::shared_ptr<Consumer const>& slot, Consumer consumer)
{
    auto fresh = std::make_shared<Consumer const>(std::move(consumer));
    if (m_activeRuns != 0)
        m_replacedConsumers.push_back(slot);
    slot = std::move(fresh);
    m_takesText = *m_textConsumer || *m_textViewConsumer || *m_numberConsumer;
    m_takesViewsOnly = *m_textViewConsumer && !*m_numberConsumer;
    m_hasBulkConsumer = static_cast<bool>(*m_bulkConsumer);
}

void State::RegisterTextConsumer(TextConsumer consumer)
{
    Replace(m_textConsumer, std::move(consumer));
}

void State::RegisterTextViewConsumer(TextViewConsumer consumer)
{
    Replace(m_textViewConsumer, std::move(consumer));
}

void State::RegisterNumberConsumer(NumberConsumer consumer)
{
    Replace(m_numberConsumer, std::move(consumer));
}

void State::RegisterBulkConsumer(BulkConsumer consumer)
{
    Replace(m_bulkConsumer, std::move(consumer));
}

void State::RegisterEndOfSourceConsumer(EndOfSourceConsumer consumer)
{
    Replace(m_endOfSourceConsumer, std::move(consumer));
}

bool State::HasTextConsumer() const noexcept
{
    return static_cast<bool>(*m_textConsumer);
}

bool State::HasNumberConsumer() const noexcept
{
    return static_cast<bool>(*m_numberConsumer);
}

bool State::HasEndOfSourceConsumer() const noexcept
{
    return static_cast<bool>(*m_endOfSourceConsumer);
}

State::TextConsumer const& State::GetTextConsumer() const noexcept
{
    return *m_textConsumer;
}

State::NumberConsumer const& State::GetNumberConsumer() const noexcept
{
    return *m_numberConsumer;
}

State::EndOfSourceConsumer const& State::GetEndOfSourceConsumer() const noexcept
{
    return *m_endOfSourceConsumer;
}

void State::RegisterTokenConsumer(std::string const& text, TokenConsumer consumer, CaseSensitivityType caseSensitivity)
{
    InsertToken(MakeToken(text, std::move(consumer), caseSensitivity));
}

void State::RegisterSkipToken(std::string const& text, CaseSensitivityType caseSensitivity)
{
    auto token = MakeToken(
        text, [](ResultParams&) {}, caseSensitivity);
    token->action = Internal::StateToken::Action::Skip;
    InsertToken(std::move(token));
}

void State::RegisterInvalidToken(std::string const& text, CaseSensitivityType caseSensitivity)
{
    InsertToken(MakeToken(
        text, [](ResultParams& params) { params.isSyntaxError = true; }, caseSensitivity));
}

void State::RegisterTransitionToken(std::string const& text, unsigned int nextStateId,
                                    CaseSensitivityType caseSensitivity)
{
    auto token = MakeToken(
        text, [nextStateId](ResultParams& params) { params.nextStateId = nextStateId; }, caseSensitivity);
    token->action = Internal::StateToken::Action::Transition;
    token->nextStateId = nextStateId;
    InsertToken(std::move(token));
}

void State::InsertToken(std::unique_ptr<Internal::StateToken> token)
{
    if (token->text.empty())
        throw ArgumentException();
    m_tokens->Insert(std::move(token));
}

bool State::HasCaseSensitiveTokens() const noexcept
{
    return m_tokens->HasCaseSensitiveTokens();
}

bool State::HasCaseInsensitiveTokens() const noexcept
{
    return m_tokens->HasCaseInsensitiveTokens();
}

Internal::StringPartNode<Internal::StateToken> const* State::GetTokenRoot(char first) const noexcept
{
    return m_tokens->GetRoot(static_cast<unsigned char>(first));
}

Internal::StateToken* State::FindToken(std::string const& text) const
{
    return m_tokens->FindLongestPrefix(text);
}

} // namespace Vek::Framework::IParser::Native
