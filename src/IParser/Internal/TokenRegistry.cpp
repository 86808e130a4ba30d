#include <IParser/Internal/TokenRegistry.h>

#include <IParser/Symbol.h>

#include <algorithm>
#include <utility>

namespace Vek::Framework::IParser::Native::Internal
{

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
    auto const hasText = [&](Candidate const& candidate) { return candidate.token->GetText() == text; };
    return std::none_of(bucket.begin(), bucket.end(), hasText);
}

void TokenRegistry::Insert(Token token)
{
    int const id = token.GetId();
    auto const added = m_tokens.emplace(id, std::move(token)).first;
    std::string const& text = added->second.GetText();
    Bucket& bucket = BucketOf(text.front());
    auto const isNotLonger = [&](Candidate const& other) { return other.size <= text.size(); };
    try
    {
        bucket.insert(std::find_if(bucket.begin(), bucket.end(), isNotLonger),
                      Candidate{ &added->second, text.data(), text.size() });
    }
    catch (...)
    {
        m_tokens.erase(added);
        throw;
    }
}

bool TokenRegistry::IsSureToken(char first) const
{
    Bucket const& bucket = BucketOf(first);
    auto const isScannable = [](Candidate const& candidate) { return candidate.token->IsScannable(); };
    return !bucket.empty() && bucket.back().size == 1 && std::all_of(bucket.begin(), bucket.end(), isScannable);
}

Token* TokenRegistry::FindToken(int id) const
{
    auto const found = m_tokens.find(id);
    return found == m_tokens.end() ? nullptr : const_cast<Token*>(&found->second); // nothing of it can be changed
}

} // namespace Vek::Framework::IParser::Native::Internal
