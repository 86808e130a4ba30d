#pragma once

#include <VekApi.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Vek::Framework::IParser::Native
{

namespace Internal
{
class StateTable;
struct StateToken;
class TokenTree;
template <class T>
class StringPartNode;
} // namespace Internal

/// One state of a StateParser: the tokens that are recognised in it, and the consumers of the text between them.
///
/// Made and owned by StateParser::RegisterState.
/// Consumers: called on the thread of ProcessSource, one at a time. A consumer may throw; the exception leaves
///            ProcessSource. It may register tokens and replace consumers of any state, itself included: a token counts
///            from the next recognition on, a consumer from its next call on, and the one that is running stays alive.
/// Case:      a token without case matches ASCII letters in either case; no other byte is folded.
/// Errors:    a registration that throws leaves the state as it was.
class VEK_API State
{
public:
    enum CaseSensitivityType : unsigned int
    {
        CaseSensitive = 0,
        CaseInsensitive = 1 ///< so does every other value but 0
    };

    /// What a consumer is told and may change.
    struct ResultParams
    {
        unsigned int nextStateId;    ///< the current state; processing goes on in the state named here
        bool isSyntaxError;          ///< false; true ends processing with InvalidSyntax
        bool stop;                   ///< false; true ends processing with Ok, also beside isSyntaxError
        unsigned long long position; ///< offset of the first character of this text or token; the length at the end
    };

    using TextConsumer = std::function<void(std::string const& text, ResultParams&)>;
    using TextViewConsumer = std::function<void(std::string_view text, ResultParams&)>;
    using NumberConsumer = std::function<void(double number, ResultParams&)>;
    using EndOfSourceConsumer = std::function<void(ResultParams&)>;
    using TokenConsumer = std::function<void(ResultParams&)>;
    using BulkConsumer = std::function<char const*(char const* begin, char const* end, ResultParams&)>;

    State(State const&) = delete;
    State& operator=(State const&) = delete;
    ~State();

    unsigned int GetId() const noexcept;

    /// Replaces the consumer of the text before a token or the end. The text is valid during the call only.
    /// A state that takes text in no way drops it.
    void RegisterTextConsumer(TextConsumer consumer);
    /// Replaces the consumer that is handed the same text without a copy of it; where there is one, the text consumer
    /// is not called. The view is valid during the call only.
    void RegisterTextViewConsumer(TextViewConsumer consumer);
    /// Replaces the consumer of the texts that strtod, in the current C locale, takes whole and in range.
    /// All other texts go to the text consumer.
    void RegisterNumberConsumer(NumberConsumer consumer);
    /// Replaces the consumer that runs when the source ends in this state.
    void RegisterEndOfSourceConsumer(EndOfSourceConsumer consumer);

    /// Replaces the consumer that may take a piece of the source itself, for hosts that know a short way for common
    /// input. It is asked where it pays, and only while no text is pending, so a run must come to the same without it.
    /// It is shown what of the source is in memory and answers the end of what it took, `begin` for nothing; the rest
    /// goes through recognition. `nextStateId` is the state there, also when it ends the run; the result names the
    /// first character it did not take.
    void RegisterBulkConsumer(BulkConsumer consumer);

    bool HasTextConsumer() const noexcept;
    bool HasNumberConsumer() const noexcept;
    bool HasEndOfSourceConsumer() const noexcept;
    /// The stored function, empty if there is none; valid until it is replaced.
    TextConsumer const& GetTextConsumer() const noexcept;
    NumberConsumer const& GetNumberConsumer() const noexcept;
    EndOfSourceConsumer const& GetEndOfSourceConsumer() const noexcept;

    /// Each adds a token; the longest token wins, and of two that begin at different places the first.
    /// Throws ArgumentException for an empty text, KeyAlreadyInsertedException for a text that the state has already,
    /// be it as it stands or, for a token without case, in lower case.
    /// An empty `consumer` is taken and fails with std::bad_function_call when its token is met.
    void RegisterTokenConsumer(std::string const& text, TokenConsumer consumer, CaseSensitivityType caseSensitivity);
    void RegisterSkipToken(std::string const& text, CaseSensitivityType caseSensitivity);
    void RegisterInvalidToken(std::string const& text, CaseSensitivityType caseSensitivity);
    /// A token that only leads to another state: a consumer that sets `nextStateId`, without the call.
    void RegisterTransitionToken(std::string const& text, unsigned int nextStateId,
                                 CaseSensitivityType caseSensitivity);

    bool HasCaseSensitiveTokens() const noexcept;
    bool HasCaseInsensitiveTokens() const noexcept;

    /// The node of the tokens whose key begins with this byte, or null.
    Internal::StringPartNode<Internal::StateToken> const* GetTokenRoot(char first) const noexcept;

    /// The token of the longest registered prefix of `text`, or null; owned by the state.
    /// The tree is followed byte by byte first; only if that finds nothing, once more with every byte lowered by
    /// the C library. Recognition in a source is stricter: there a token counts only under its own case rule.
    Internal::StateToken* FindToken(std::string const& text) const;

private:
    friend class Internal::StateTable;
    friend class StateProcessor;

    State(unsigned int id, unsigned int const& activeRuns);

    void InsertToken(std::unique_ptr<Internal::StateToken> token);
    void ForgetReplacedConsumers();
    template <class Consumer>
    VEK_LOCAL void Replace(std::shared_ptr<Consumer const>& slot, Consumer consumer);

    unsigned int m_id;
    unsigned int const& m_activeRuns; // of the table that owns this state
    std::shared_ptr<TextConsumer const> m_textConsumer;
    std::shared_ptr<TextViewConsumer const> m_textViewConsumer;
    std::shared_ptr<NumberConsumer const> m_numberConsumer;
    std::shared_ptr<BulkConsumer const> m_bulkConsumer;
    std::shared_ptr<EndOfSourceConsumer const> m_endOfSourceConsumer;
    std::vector<std::shared_ptr<void const>> m_replacedConsumers; // kept while one of them may be running
    bool m_takesText = false;                                     // in one of the three ways
    bool m_takesViewsOnly = false;                                // in that one of the three ways
    bool m_hasBulkConsumer = false;
    std::unique_ptr<Internal::TokenTree> m_tokens;
};

} // namespace Vek::Framework::IParser::Native
