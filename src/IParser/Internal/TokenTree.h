#pragma once

#include <IParser/Internal/ByteFinder.h>
#include <IParser/Internal/StateToken.h>
#include <IParser/Internal/StringPartNode.h>

#include <array>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace Vek::Framework::IParser::Native::Internal
{

/// The tokens of one state as a tree of their keys, with what recognition needs to find them fast.
/// Nodes lie in one list, so that neither a long token nor many of them cost depth on the stack.
class TokenTree
{
public:
    using Node = StringPartNode<StateToken>;

    TokenTree() = default;
    TokenTree(TokenTree const&) = delete;
    TokenTree& operator=(TokenTree const&) = delete;

    /// `token` has a key of at least one byte. Throws KeyAlreadyInsertedException; the tree is unchanged then.
    void Insert(std::unique_ptr<StateToken> token);

    bool HasCaseSensitiveTokens() const { return m_hasCaseSensitiveTokens; }
    bool HasCaseInsensitiveTokens() const { return m_hasCaseInsensitiveTokens; }

    Node const* GetRoot(unsigned char first) const { return m_roots[first]; }
    StateToken* FindLongestPrefix(std::string const& text) const;

    /// The first byte in [at, end) with which a token may begin, or `end`.
    char const* FindTokenStart(char const* at, char const* end) const { return m_starts.Find(at, end); }

    /// The first byte in [at, end) that is not a skip token all by itself, or `end`.
    char const* SkipBlanks(char const* at, char const* end) const { return m_blanks.FindOther(at, end); }

    /// The token that `first` alone makes, whatever follows; null when more of the source has to be seen.
    StateToken const* GetSingleByteToken(char first) const { return m_singles[static_cast<unsigned char>(first)]; }

    /// What begins with a byte.
    enum class Start : unsigned char
    {
        Nothing, ///< text
        Single,  ///< a token by itself, which GetSingleByteToken tells
        Blank,   ///< the same, and it is skipped
        Several  ///< what follows tells
    };
    Start GetStart(char first) const { return m_kinds[static_cast<unsigned char>(first)]; }

    struct Match
    {
        StateToken const* token;
        std::size_t length;
    };
    /// The longest token at `at`, where one may begin; null when there is none, and when that hangs on what comes
    /// behind `end` or on the case of letters.
    Match MatchInMemory(char const* at, char const* end) const;

private:
    template <class Fold>
    StateToken* FindLongestPrefix(std::string const& text, Fold fold) const;
    Node* FindNode(std::string const& key, std::size_t& matched) const;
    void Append(Node* parent, std::size_t depth, StateToken& token);
    void Classify(unsigned char byte);
    StateToken const* FindSingleByteToken(unsigned char byte) const;

    std::array<Node*, 256> m_roots{};
    std::deque<Node> m_nodes;
    std::vector<std::unique_ptr<StateToken>> m_tokens;
    ByteFinder m_starts;
    ByteFinder m_blanks;
    std::array<StateToken const*, 256> m_singles{};
    std::array<Start, 256> m_kinds{};
    bool m_hasCaseSensitiveTokens = false;
    bool m_hasCaseInsensitiveTokens = false;
};

} // namespace Vek::Framework::IParser::Native::Internal
