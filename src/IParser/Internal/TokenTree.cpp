#include <IParser/Internal/TokenTree.h>

#include <IParser/Internal/Ascii.h>
#include <IParser/Internal/KeyAlreadyInsertedException.h>

#include <cctype>

namespace Vek::Framework::IParser::Native::Internal
{

void TokenTree::Insert(std::unique_ptr<StateToken> token)
{
    std::size_t depth = 0;
    Node* const node = FindNode(token->key, depth);
    bool const isComplete = depth == token->key.size();
    if (isComplete && node->GetValue() != nullptr)
        throw KeyAlreadyInsertedException();

    StateToken& inserted = *m_tokens.emplace_back(std::move(token));
    if (isComplete)
        node->SetValue(&inserted);
    else
        Append(node, depth, inserted);

    unsigned char const first = static_cast<unsigned char>(inserted.key.front());
    (inserted.isCaseSensitive ? m_hasCaseSensitiveTokens : m_hasCaseInsensitiveTokens) = true;
    Classify(first);
    Classify(ToAsciiUpper(first));
}

// The node of the longest part of `key` that is in the tree, null for none; `matched` is that part's length.
TokenTree::Node* TokenTree::FindNode(std::string const& key, std::size_t& matched) const
{
    Node* node = nullptr;
    Node* next = m_roots[static_cast<unsigned char>(key.front())];
    for (matched = 0; next != nullptr; ++matched)
    {
        node = next;
        next = matched + 1 < key.size() ? node->FindChild(static_cast<unsigned char>(key[matched + 1])) : nullptr;
    }
    return node;
}

// Makes the missing nodes from the last byte upwards and joins them to the tree with the last step, so that a failed
// allocation leaves the tree as it was.
void TokenTree::Append(Node* parent, std::size_t depth, StateToken& token)
{
    Node* top = &m_nodes.emplace_back();
    top->SetValue(&token);
    for (std::size_t i = token.key.size() - 1; i > depth; --i)
    {
        Node& node = m_nodes.emplace_back();
        node.AddChild(static_cast<unsigned char>(token.key[i]), *top);
        top = &node;
    }
    unsigned char const part = static_cast<unsigned char>(token.key[depth]);
    if (parent == nullptr)
        m_roots[part] = top;
    else
        parent->AddChild(part, *top);
}

void TokenTree::Classify(unsigned char byte)
{
    bool const isStart = (m_hasCaseSensitiveTokens && m_roots[byte] != nullptr) ||
                         (m_hasCaseInsensitiveTokens && m_roots[ToAsciiLower(byte)] != nullptr);
    if (isStart)
        m_starts.Add(byte);

    StateToken const* const single = FindSingleByteToken(byte);
    bool const isBlank = single != nullptr && single->action == StateToken::Action::Skip;
    m_singles[byte] = single;
    m_kinds[byte] = isBlank             ? Start::Blank
                    : single != nullptr ? Start::Single
                    : isStart           ? Start::Several
                                        : Start::Nothing;
    if (isBlank)
        m_blanks.Add(byte);
    else
        m_blanks.Remove(byte);
}

// A token of one byte that no longer token can take over.
StateToken const* TokenTree::FindSingleByteToken(unsigned char byte) const
{
    Node const* const root = m_roots[byte];
    if (root == nullptr || root->HasChildren() || ToAsciiLower(byte) != byte)
        return nullptr;
    StateToken const* const token = root->GetValue(); // not null: a node without children ends a key
    return token->isCaseSensitive ? token : nullptr;
}

TokenTree::Match TokenTree::MatchInMemory(char const* at, char const* end) const
{
    Match longest{ nullptr, 0 };
    if (m_hasCaseInsensitiveTokens)
        return longest;
    Node const* node = m_roots[static_cast<unsigned char>(*at)];
    for (char const* next = at + 1; node != nullptr; ++next)
    {
        if (node->GetValue() != nullptr)
            longest = { node->GetValue(), static_cast<std::size_t>(next - at) };
        if (!node->HasChildren())
            break;
        if (next == end)
            return { nullptr, 0 };
        node = node->FindChild(static_cast<unsigned char>(*next));
    }
    return longest;
}

StateToken* TokenTree::FindLongestPrefix(std::string const& text) const
{
    StateToken* found = nullptr;
    if (m_hasCaseSensitiveTokens)
        found = FindLongestPrefix(text, [](unsigned char byte) { return byte; });
    if (found == nullptr && m_hasCaseInsensitiveTokens)
        found =
            FindLongestPrefix(text, [](unsigned char byte) { return static_cast<unsigned char>(std::tolower(byte)); });
    return found;
}

template <class Fold>
StateToken* TokenTree::FindLongestPrefix(std::string const& text, Fold fold) const
{
    StateToken* found = nullptr;
    Node const* node = text.empty() ? nullptr : m_roots[fold(static_cast<unsigned char>(text.front()))];
    for (std::size_t length = 1; node != nullptr; ++length)
    {
        if (node->GetValue() != nullptr)
            found = node->GetValue();
        node = length < text.size() ? node->FindChild(fold(static_cast<unsigned char>(text[length]))) : nullptr;
    }
    return found;
}

} // namespace Vek::Framework::IParser::Native::Internal
