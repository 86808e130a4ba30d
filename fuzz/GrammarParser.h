#pragma once

#include "NaiveParser.h"

#include <IParser/StateParser.h>

#include <istream>
#include <streambuf>

namespace StateParserTests
{

using namespace Vek::Framework::IParser::Native;

/// A stream buffer that makes a source available `pieceSize` bytes at a time. When `isShort`, a read of a block ends
/// with the piece; otherwise it goes on to the next one, as the standard's own buffers do.
class PiecewiseBuffer : public std::streambuf
{
public:
    PiecewiseBuffer(std::string const& source, std::size_t pieceSize, bool isShort)
        : m_source(source),
          m_pieceSize(pieceSize),
          m_isShort(isShort)
    {
    }

protected:
    int_type underflow() override
    {
        if (m_next == m_source.size())
            return traits_type::eof();
        std::size_t const size = std::min(m_pieceSize, m_source.size() - m_next);
        char* const piece = m_source.data() + m_next;
        setg(piece, piece, piece + size);
        m_next += size;
        return traits_type::to_int_type(*piece);
    }

    std::streamsize xsgetn(char* target, std::streamsize count) override
    {
        if (!m_isShort)
            return std::streambuf::xsgetn(target, count);
        if (gptr() == egptr() && underflow() == traits_type::eof())
            return 0;
        return std::streambuf::xsgetn(target, std::min<std::streamsize>(count, egptr() - gptr()));
    }

private:
    std::string m_source;
    std::size_t m_pieceSize;
    bool m_isShort;
    std::size_t m_next = 0;
};

/// A StateParser set up from a grammar, with consumers that write the trace of NaiveParser.
class GrammarParser
{
public:
    explicit GrammarParser(Grammar const& grammar) : m_grammar(grammar)
    {
        for (std::size_t index = 0; index < m_grammar.size(); ++index)
            Register(m_grammar[index], IdOf(index));
    }

    std::string RunString(std::string const& source)
    {
        return Run([&] { return m_parser.ProcessSource(source); });
    }

    std::string RunStream(std::string const& source, bool useBlockBuffer, std::size_t pieceSize = 1 << 24,
                          bool isShort = false)
    {
        PiecewiseBuffer buffer(source, pieceSize, isShort);
        std::istream stream(&buffer);
        return Run([&] { return m_parser.ProcessSource(stream, useBlockBuffer); });
    }

private:
    template <class Process>
    std::string Run(Process const& process)
    {
        m_trace.clear();
        bool const isSuccess = process();
        ParserResult const& result = m_parser.GetParserResult();
        return m_trace + ToTraceEnd(static_cast<int>(result.resultCode), result.stateId, result.line, result.column) +
               (isSuccess == result.IsSuccess() ? "" : "answer and result differ");
    }

    void Register(StateRules const& rules, unsigned int id)
    {
        State& state =
            *m_parser.RegisterState(id, rules.skipsBlanks ? StateParser::SkipWhiteSpace : StateParser::KeepWhiteSpace);
        RegisterTextConsumers(state, rules);
        if (rules.end.kind != Reaction::Absent)
            state.RegisterEndOfSourceConsumer([this, &rules](State::ResultParams& params)
                                              { React("end", "", rules.end, params); });
        if (rules.hasBulk)
            state.RegisterBulkConsumer([&rules](char const* begin, char const* end, State::ResultParams& params)
                                       { return TakeTokensThatStandAlone(rules, begin, end, params); });
        for (TokenRule const& token : rules.tokens)
            RegisterToken(state, token);
    }

    void RegisterTextConsumers(State& state, StateRules const& rules)
    {
        auto const onText = [this, &rules](std::string_view text, State::ResultParams& params)
        { React("text", Quoted(std::string(text)), rules.text, params); };
        if (rules.text.kind != Reaction::Absent && rules.isTextView)
            state.RegisterTextViewConsumer(onText);
        else if (rules.text.kind != Reaction::Absent)
            state.RegisterTextConsumer(onText);
        if (rules.number.kind != Reaction::Absent)
            state.RegisterNumberConsumer([this, &rules](double number, State::ResultParams& params)
                                         { React("number", std::to_string(number), rules.number, params); });
    }

    void RegisterToken(State& state, TokenRule const& token)
    {
        State::CaseSensitivityType const type = token.isCaseSensitive ? State::CaseSensitive : State::CaseInsensitive;
        switch (token.kind)
        {
        case TokenRule::Call:
            state.RegisterTokenConsumer(
                token.text,
                [this, &token](State::ResultParams& params)
                { React("token", Quoted(token.text), token.reaction, params); },
                type);
            break;
        case TokenRule::Skip:
            state.RegisterSkipToken(token.text, type);
            break;
        case TokenRule::Invalid:
            state.RegisterInvalidToken(token.text, type);
            break;
        case TokenRule::Transition:
            state.RegisterTransitionToken(token.text, IdOf(token.reaction.nextState), type);
            break;
        }
    }

    // Takes skip tokens and one transition as far as they are in memory and no longer token can begin there.
    static char const* TakeTokensThatStandAlone(StateRules const& rules, char const* begin, char const* end,
                                                State::ResultParams& params)
    {
        for (; begin != end; ++begin)
        {
            char const c = TokenRule::Folded(*begin);
            auto const begins = [c](TokenRule const& token) { return TokenRule::Folded(token.text.front()) == c; };
            auto const found = std::find_if(rules.tokens.begin(), rules.tokens.end(), begins);
            if (std::count_if(rules.tokens.begin(), rules.tokens.end(), begins) != 1 ||
                found->text != std::string(1, *begin) || found->kind == TokenRule::Call)
                break;
            params.isSyntaxError = found->kind == TokenRule::Invalid;
            if (params.isSyntaxError)
                break;
            if (found->kind == TokenRule::Transition)
            {
                params.nextStateId = IdOf(found->reaction.nextState);
                return begin + 1;
            }
        }
        return begin;
    }

    void React(char const* kind, std::string const& what, Reaction const& reaction, State::ResultParams& params)
    {
        m_trace += ToTraceLine(kind, what, params.position, params.nextStateId);
        if (params.stop || params.isSyntaxError)
            m_trace += "a flag is set on entry\n";
        params.stop = reaction.kind == Reaction::Stop || reaction.kind == Reaction::StopAndRefuse;
        params.isSyntaxError = reaction.kind == Reaction::Refuse || reaction.kind == Reaction::StopAndRefuse;
        if (reaction.kind == Reaction::Switch)
            params.nextStateId = IdOf(reaction.nextState);
    }

    Grammar m_grammar;
    StateParser m_parser;
    std::string m_trace;
};

} // namespace StateParserTests
