#pragma once

#include <algorithm>
#include <cctype>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

/// What a state parser is told, as plain data: the parser under test is set up from it, and the naive one reads it.
namespace StateParserTests
{

struct Reaction
{
    enum Kind
    {
        Absent, ///< no consumer
        Continue,
        Switch,
        Stop,
        Refuse,
        StopAndRefuse
    };

    Kind kind = Absent;
    unsigned int nextState = 0;
};

struct TokenRule
{
    enum Kind
    {
        Call,
        Skip,
        Invalid,
        Transition ///< to the state of `reaction`
    };

    std::string text;
    bool isCaseSensitive = true;
    Kind kind = Call;
    Reaction reaction{ Reaction::Continue };

    std::string Key() const { return isCaseSensitive ? text : Folded(text); }

    static char Folded(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }
    static std::string Folded(std::string text)
    {
        std::transform(text.begin(), text.end(), text.begin(), [](char c) { return Folded(c); });
        return text;
    }
};

struct StateRules
{
    std::vector<TokenRule> tokens{};
    Reaction text{};
    Reaction number{};
    Reaction end{};
    bool isTextView = false;  ///< the text consumer takes a view
    bool skipsBlanks = false; ///< WhiteSpaceHandling, beside `tokens`
    bool hasBulk = false;     ///< a bulk consumer does by hand what the tokens say

    bool HasKey(std::string const& key) const
    {
        return std::any_of(tokens.begin(), tokens.end(), [&](TokenRule const& token) { return token.Key() == key; });
    }
};

/// States by index; the first is the initial one.
using Grammar = std::vector<StateRules>;

/// Small and large ids, as the parser keeps the two apart.
inline unsigned int IdOf(std::size_t index)
{
    return static_cast<unsigned int>(7 + 1000 * index);
}

inline std::string Quoted(std::string const& text)
{
    std::ostringstream quoted;
    for (char const c : text)
        if (std::isprint(static_cast<unsigned char>(c)) != 0)
            quoted << c;
        else
            quoted << '\\' << std::oct << static_cast<int>(static_cast<unsigned char>(c)) << std::dec;
    return '\'' + quoted.str() + '\'';
}

inline std::string ToString(Reaction const& reaction)
{
    char const* const names[] = { "-", "go", "switch", "stop", "refuse", "stop+refuse" };
    return names[reaction.kind] + (reaction.kind == Reaction::Switch ? std::to_string(reaction.nextState) : "");
}

inline std::string ToString(Grammar const& grammar)
{
    char const* const kinds[] = { " call ", " skip ", " invalid ", " to " };
    std::ostringstream text;
    for (StateRules const& rules : grammar)
    {
        text << "state: text " << ToString(rules.text) << (rules.isTextView ? " (view)" : "") << ", number "
             << ToString(rules.number) << ", end " << ToString(rules.end) << (rules.skipsBlanks ? ", skips blanks" : "")
             << (rules.hasBulk ? ", bulk" : "");
        for (TokenRule const& token : rules.tokens)
            text << "\n  " << Quoted(token.text) << (token.isCaseSensitive ? "" : " any case") << kinds[token.kind]
                 << ToString(token.reaction);
        text << '\n';
    }
    return text.str();
}

} // namespace StateParserTests
