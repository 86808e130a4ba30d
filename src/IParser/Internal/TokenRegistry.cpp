#include <IParser/Internal/TokenRegistry.h>

#include <IParser/Symbol.h>

#include <algorithm>
#include <utility>

namespace Vek::Framework::IParser::Native::Internal
{

namespace
{

// The first bytes are known to be equal. Tokens are short: a loop costs less than a call.
bool BeginsWith(char const* position, std::size_t remaining, std::string const& text)
{
    if (text.size() > remaining)
        return false;
    std::size_t same = 1;
    while (same < text.size() && position[same] == text[same])
        ++same;
    return same == text.size();
}

} // namespace

TokenRegistry::TokenRegistry() = default;

TokenRegistry::TokenRegistry(TokenRegistry const& other)
{
    for (auto const& entry : other.m_tokens)
        Insert(entry.second);
}

TokenRegistry& TokenRegistry::operator=(TokenRegistry const& other)
{
    TokenRegistry copy(other);
    m_tokens.swap(copy.m_tokens);
    m_buckets.swap(copy.m_buckets);
    return *this;
}

TokenRegistry::~TokenRegistry() = default;

bool TokenRegistry::AddToken(int id, std::string const& text, std::string const&, bool isScannable)
{
    if (id == static_cast<int>(Symbol::Undefined) || !CheckToken(id, text))
        return false;
    Insert(Token(id, text, "", isScannable));
    return true;
}

bool TokenRegistry::CheckToken(int id, std::string const& text) const
{
    if (text.empty() || m_tokens.contains(id))
        return false;
    Bucket const& bucket = BucketOf(text.front());
    return std::none_of(bucket.begin(), bucket.end(), [&](Token const* token) { return token->GetText() == text; });
}

void TokenRegistry::Insert(Token token)
{
    int const id = token.GetId();
    auto const added = m_tokens.emplace(id, std::move(token)).first;
    std::string const& text = added->second.GetText();
    Bucket& bucket = BucketOf(text.front());
    auto const isNotLonger = [&](Token const* other) { return other->GetText().size() <= text.size(); };
    try
    {
        bucket.insert(std::find_if(bucket.begin(), bucket.end(), isNotLonger), &added->second);
    }
    catch (...)
    {
        m_tokens.erase(added);
        throw;
    }
}

Token* TokenRegistry::FindToken(char const* position, std::size_t remaining) const
{
    if (remaining == 0)
        return nullptr;
    for (Token* const token : BucketOf(*position))
        if (BeginsWith(position, remaining, token->GetText()))
            return token;
    return nullptr;
}

Token* TokenRegistry::FindToken(int id) const
{
    auto const found = m_tokens.find(id);
    return found == m_tokens.end() ? nullptr : const_cast<Token*>(&found->second); // nothing of it can be changed
}

} // namespace Vek::Framework::IParser::Native::Internal
