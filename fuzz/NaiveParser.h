#pragma once

#include "Grammar.h"

#include <deque>
#include <optional>
#include <stdexcept>

namespace StateParserTests
{

/// One line of a trace: what a consumer was told. Shared, so that two parsers that agree write the same.
inline std::string ToTraceLine(char const* kind, std::string const& what, unsigned long long position,
                               unsigned int stateId)
{
    return kind + (what.empty() ? "" : ' ' + what) + " @" + std::to_string(position) + " in " +
           std::to_string(stateId) + "\n";
}

inline std::string ToTraceEnd(int code, unsigned int stateId, int line, int column)
{
    return "-> " + std::to_string(code) + " in " + std::to_string(stateId) + " at " + std::to_string(line) + ":" +
           std::to_string(column) + "\n";
}

/// The state parser said as simply as possible: every character moves every candidate, nothing is remembered between
/// two tokens, and what was read too far is read again.
class NaiveParser
{
public:
    NaiveParser(Grammar const& grammar, std::string const& source)
        : m_grammar(grammar),
          m_unread(source.begin(), source.end())
    {
    }

    /// The trace of all consumers and the result.
    std::string Run()
    {
        do
        {
            while (!m_unread.empty())
                if (Take() && !ProcessToken())
                    return Result();
            if (m_best && !ProcessToken())
                return Result();
        } while (!m_unread.empty());

        if (ConsumeText(m_pending))
        {
            MoveOver(m_pending);
            Invoke("end", "", Rules().end);
        }
        return Result();
    }

private:
    struct Candidate
    {
        std::size_t start;
        bool isCaseSensitive;
        std::string path;
    };

    struct Match
    {
        std::size_t start;
        TokenRule token;
    };

    StateRules const& Rules() const { return m_grammar[m_state]; }

    // Takes one character; true when a token is complete.
    bool Take()
    {
        char const c = m_unread.front();
        m_unread.pop_front();
        m_pending += c;
        if (!m_best)
            for (bool const isCaseSensitive : { true, false })
                m_candidates.push_back({ m_pending.size() - 1, isCaseSensitive, "" });
        std::vector<Candidate> alive;
        for (Candidate& candidate : m_candidates)
            if (Follow(candidate, c))
                alive.push_back(candidate);
        m_candidates = alive;
        return m_best && m_candidates.empty();
    }

    bool Follow(Candidate& candidate, char c)
    {
        candidate.path += candidate.isCaseSensitive ? c : TokenRule::Folded(c);
        bool isAlive = false;
        auto const follow = [&](TokenRule const& token)
        {
            isAlive = isAlive || token.Key().starts_with(candidate.path);
            if (token.Key() == candidate.path && token.isCaseSensitive == candidate.isCaseSensitive)
                Record({ candidate.start, token });
        };
        std::for_each(Rules().tokens.begin(), Rules().tokens.end(), follow);
        if (Rules().skipsBlanks)
            for (char const* const blank : { " ", "\t", "\r", "\n" })
                follow({ blank, true, TokenRule::Skip, {} });
        return isAlive;
    }

    void Record(Match const& match)
    {
        bool const isBetter = !m_best || match.start < m_best->start ||
                              (match.start == m_best->start && match.token.text.size() > m_best->token.text.size());
        if (isBetter)
            m_best = match;
    }

    bool ProcessToken()
    {
        Match const match = *m_best;
        std::string const text = m_pending.substr(0, match.start);
        std::string const token = m_pending.substr(match.start, match.token.text.size());
        ReadAgain(m_pending.substr(text.size() + token.size()));
        m_pending.clear();
        m_candidates.clear();
        m_best.reset();

        std::size_t const state = m_state;
        if (!ConsumeText(text))
            return false;
        MoveOver(text);
        if (m_state != state)
        {
            ReadAgain(token);
            return true;
        }
        if (!ConsumeToken(match.token))
            return false;
        MoveOver(token);
        return true;
    }

    void ReadAgain(std::string const& text) { m_unread.insert(m_unread.begin(), text.begin(), text.end()); }

    bool ConsumeToken(TokenRule const& token)
    {
        switch (token.kind)
        {
        case TokenRule::Call:
            return Invoke("token", Quoted(token.text), token.reaction);
        case TokenRule::Skip:
            return true;
        case TokenRule::Invalid:
            m_code = 2;
            return false;
        case TokenRule::Transition:
            m_state = token.reaction.nextState;
            return true;
        }
        throw std::logic_error("no such kind of token");
    }

    bool ConsumeText(std::string const& text)
    {
        if (text.empty())
            return true;
        if (std::optional<double> const number = ToNumber(text); number && Rules().number.kind != Reaction::Absent)
            return Invoke("number", std::to_string(*number), Rules().number);
        return Invoke("text", Quoted(text), Rules().text);
    }

    static std::optional<double> ToNumber(std::string const& text)
    {
        try
        {
            std::size_t used = 0;
            double const number = std::stod(text, &used);
            return used == text.size() ? std::optional<double>(number) : std::nullopt;
        }
        catch (std::logic_error const&) // invalid_argument and out_of_range
        {
            return std::nullopt;
        }
    }

    bool Invoke(char const* kind, std::string const& what, Reaction const& reaction)
    {
        if (reaction.kind == Reaction::Absent)
            return true;
        m_trace += ToTraceLine(kind, what, m_position, IdOf(m_state));
        if (reaction.kind == Reaction::Refuse)
            m_code = 2;
        if (reaction.kind == Reaction::Switch)
            m_state = reaction.nextState;
        return reaction.kind == Reaction::Switch || reaction.kind == Reaction::Continue;
    }

    void MoveOver(std::string const& text)
    {
        for (char const c : text)
        {
            ++m_position;
            m_column = c == '\n' ? 0 : m_column + 1;
            m_line += c == '\n' ? 1 : 0;
        }
    }

    std::string Result() const { return m_trace + ToTraceEnd(m_code, IdOf(m_state), m_line + 1, m_column + 1); }

    Grammar const& m_grammar;
    std::deque<char> m_unread;
    std::string m_pending;
    std::vector<Candidate> m_candidates;
    std::optional<Match> m_best;
    std::size_t m_state = 0;
    unsigned long long m_position = 0;
    int m_line = 0;
    int m_column = 0;
    int m_code = 0;
    std::string m_trace;
};

} // namespace StateParserTests
