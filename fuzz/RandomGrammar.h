#pragma once

#include "Grammar.h"

namespace StateParserTests
{

/// Makes grammars and sources out of choices: Choose(n) answers one of 0 to n - 1, from whatever drives the test.
class RandomGrammar
{
public:
    explicit RandomGrammar(std::function<unsigned int(unsigned int)> choose) : Choose(std::move(choose))
    {
        // Few letters, so that tokens overlap; with digits, blanks, case and bytes of both halves.
        char const* const alphabets[] = { "ab<=-AB \n", "aA1.- ", "<>/=ab\n", "a\344\304\n", "a< \t\n" };
        m_alphabet = alphabets[Choose(5)];
        if (Choose(8) == 0)
            m_alphabet += '\0';
    }

    Grammar MakeGrammar()
    {
        Grammar grammar(1 + Choose(3));
        for (StateRules& rules : grammar)
            rules = MakeRules(static_cast<unsigned int>(grammar.size()));
        return grammar;
    }

    std::string MakeSource(unsigned int length)
    {
        std::string source;
        while (source.size() < length)
            if (Choose(40) == 0)
                source.append(Choose(length), MakeCharacter());
            else
                source += MakeCharacter();
        return source;
    }

private:
    char MakeCharacter() { return m_alphabet[Choose(static_cast<unsigned int>(m_alphabet.size()))]; }

    StateRules MakeRules(unsigned int states)
    {
        StateRules rules;
        rules.skipsBlanks = Choose(4) == 0;
        rules.isTextView = Choose(2) == 0;
        rules.hasBulk = Choose(3) == 0;
        rules.text = Choose(4) == 0 ? Reaction{} : MakeReaction(states);
        rules.number = Choose(2) == 0 ? Reaction{} : MakeReaction(states);
        rules.end = Choose(2) == 0 ? Reaction{} : MakeReaction(states);
        for (unsigned int i = Choose(8); i > 0; --i)
        {
            TokenRule const token = MakeToken(rules, states);
            bool const isBlank = rules.skipsBlanks && (token.text == " " || token.text == "\t" || token.text == "\n");
            if (!rules.HasKey(token.Key()) && !isBlank)
                rules.tokens.push_back(token);
        }
        return rules;
    }

    // Every other token goes on where another one ends.
    TokenRule MakeToken(StateRules const& rules, unsigned int states)
    {
        TokenRule token;
        if (!rules.tokens.empty() && Choose(2) == 0)
            token.text = rules.tokens[Choose(static_cast<unsigned int>(rules.tokens.size()))].text;
        std::size_t const length = token.text.size() + 1 + Choose(token.text.empty() ? 4 : 2);
        while (token.text.size() < length)
            token.text += MakeCharacter();
        token.isCaseSensitive = Choose(2) == 0;
        using enum TokenRule::Kind;
        TokenRule::Kind const kinds[] = { Call, Call, Call, Call, Call,       Call,
                                          Call, Skip, Skip, Skip, Transition, Transition };
        token.kind = Choose(16) == 0 ? Invalid : kinds[Choose(12)];
        token.reaction =
            token.kind == TokenRule::Transition ? Reaction{ Reaction::Switch, Choose(states) } : MakeReaction(states);
        return token;
    }

    Reaction MakeReaction(unsigned int states)
    {
        switch (Choose(32))
        {
        case 0:
            return { Reaction::Stop };
        case 1:
            return { Reaction::Refuse };
        case 2:
            return { Reaction::StopAndRefuse };
        default:
            return Choose(4) == 0 ? Reaction{ Reaction::Switch, Choose(states) } : Reaction{ Reaction::Continue };
        }
    }

    std::function<unsigned int(unsigned int)> Choose;
    std::string m_alphabet;
};

} // namespace StateParserTests
