// A text of a small language cut into symbols: kind and a copy of the text. Ours learn their tokens at run time and
// count lines and columns; the scanners of re2c and flex were generated from grammars and count nothing.

#include "Contest.h"
#include "TokenScanners.h"

#include <IParser/SimpleParser.h>
#include <IParser/StateParser.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace Benchmarks
{

namespace
{

using namespace Vek::Framework::IParser::Native;

SymbolTotals ScanWithSimpleParser(SimpleParser& parser, std::string const& source)
{
    parser.ProvideSource(source);
    SymbolTotals totals;
    Symbol symbol;
    while (parser.GetNextSymbol(symbol))
        totals.Add(static_cast<unsigned>(symbol.GetSymbolId()), symbol.GetText());
    return totals;
}

SimpleParser MakeSimpleParser()
{
    SimpleParser parser(false);
    for (std::size_t i = 0; i < std::size(c_operators); ++i)
        parser.AddToken(static_cast<int>(i + 1), std::string(c_operators[i]), "", true);
    return parser;
}

/// The same by a state parser, whose handlers put the symbols together.
class StateScanner
{
public:
    StateScanner()
    {
        RegisterCode();
        RegisterText();
        State* const comment = m_parser.RegisterState(Comment, StateParser::KeepWhiteSpace);
        comment->RegisterTransitionToken("\n", Code, State::CaseSensitive);
    }

    SymbolTotals Scan(std::string const& source)
    {
        m_totals = SymbolTotals();
        if (!m_parser.ProcessSource(source))
            m_totals.symbols = 0;
        return m_totals;
    }

private:
    enum StateId : unsigned
    {
        Code,
        Quoted,
        Comment
    };

    void RegisterCode()
    {
        State* const code = m_parser.RegisterState(Code, StateParser::SkipWhiteSpace);
        code->RegisterTransitionToken("//", Comment, State::CaseSensitive);
        code->RegisterTransitionToken("\"", Quoted, State::CaseSensitive);
        for (std::size_t i = 0; i < std::size(c_operators); ++i)
            code->RegisterTokenConsumer(
                std::string(c_operators[i]),
                [=, this](State::ResultParams&) { Add(static_cast<unsigned>(i + 1), c_operators[i]); },
                State::CaseSensitive);
        code->RegisterTextViewConsumer([this](std::string_view text, State::ResultParams&)
                                       { Add(IsNumber(text) ? Number : Identifier, text); });
    }

    void RegisterText()
    {
        State* const quoted = m_parser.RegisterState(Quoted, StateParser::KeepWhiteSpace);
        quoted->RegisterTextViewConsumer([this](std::string_view text, State::ResultParams&) { Add(Text, text); });
        quoted->RegisterTransitionToken("\"", Code, State::CaseSensitive);
    }

    static bool IsNumber(std::string_view text)
    {
        auto const isDigit = [](char c) { return c >= '0' && c <= '9'; };
        if (!isDigit(text.front()))
            return false;
        auto const point = std::find_if_not(text.begin(), text.end(), isDigit);
        return point == text.end() || (*point == '.' && std::all_of(point + 1, text.end(), isDigit));
    }

    void Add(unsigned kind, std::string_view text)
    {
        m_symbol.kind = kind;
        m_symbol.text.assign(text);
        m_totals.Add(kind, m_symbol.text);
    }

    StateParser m_parser;
    ScannedSymbol m_symbol;
    SymbolTotals m_totals;
};

bool const c_isRegistered = []
{
    static SimpleParser s_parser = MakeSimpleParser();
    static StateScanner s_scanner;
    std::string const source = MakeTokenSource();
    Register("Tokenise/ours", source.size(), [=] { return ScanWithSimpleParser(s_parser, source); });
    Register("TokeniseByStates/ours", source.size(), [=] { return s_scanner.Scan(source); });
    return true;
}();

} // namespace

} // namespace Benchmarks
