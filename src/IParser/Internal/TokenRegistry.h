#pragma once

#include <IParser/Internal/Token.h>
#include <VekApi.h>

#include <array>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace Vek::Framework::IParser::Native::Internal
{

/// The tokens of a SimpleParser: bytes that are compared as they are, each with its id.
///
/// Ownership: tokens belong to the registry, stay where they are and live as long as it does; a copy has its own.
///            Assigning to a registry ends the tokens it had.
/// Cost:      a search compares only tokens that share the first byte.
class VEK_API TokenRegistry
{
public:
    TokenRegistry();
    TokenRegistry(TokenRegistry const& other);
    TokenRegistry& operator=(TokenRegistry const& other);
    ~TokenRegistry();

    /// Adds a token; false, and nothing is changed, for
    ///   - the id of Symbol::Undefined (65530), which would make the token look like no symbol,
    ///   - an id or a text that is there already,
    ///   - an empty text, which would be found everywhere and lead nowhere.
    /// `description` is not kept: tokens are told apart by id, and their symbols have an empty description.
    bool AddToken(int id, std::string const& text, std::string const& description, bool isScannable);

    /// The longest token that the `remaining` bytes at `position` begin with, scannable or not; null if there is none.
    Token* FindToken(char const* position, std::size_t remaining) const
    {
        if (remaining != 0)
            for (Candidate const& candidate : m_buckets[static_cast<unsigned char>(*position)])
                if (candidate.size <= remaining && candidate.IsAt(position))
                    return candidate.token;
        return nullptr;
    }

    /// The longest of the tokens that begin with `first`; there must be one.
    Token const& GetLongest(char first) const { return *BucketOf(first).front().token; }

    /// True when `first` alone is a token and none that begins with it is kept from the scanner.
    bool IsSureToken(char first) const;

    /// Null if no token has this id.
    Token* FindToken(int id) const;

private:
    struct Candidate
    {
        // The first byte is known to be equal. Tokens are short: a loop costs less than a call.
        bool IsAt(char const* position) const
        {
            std::size_t same = 1;
            while (same < size && position[same] == text[same])
                ++same;
            return same >= size;
        }

        Token* token;
        char const* text;
        std::size_t size;
    };
    using Bucket = std::vector<Candidate>; // the longest text first

    VEK_LOCAL bool CheckToken(int id, std::string const& text) const;
    Bucket& BucketOf(char first) { return m_buckets[static_cast<unsigned char>(first)]; }
    Bucket const& BucketOf(char first) const { return m_buckets[static_cast<unsigned char>(first)]; }
    VEK_LOCAL void Insert(Token token);

    std::unordered_map<int, Token> m_tokens;
    std::array<Bucket, 256> m_buckets; // by first byte
};

} // namespace Vek::Framework::IParser::Native::Internal
