#pragma once

#include "NaiveScanner.h"

#include <IParser/SimpleParser.h>

#include <functional>

namespace SimpleParserTests
{

using Vek::Framework::IParser::Native::SimpleParser;
using Vek::Framework::IParser::Native::Symbol;

inline SimpleParser MakeParser(ScannerRules const& rules, std::string const& source, bool recordSymbols = false)
{
    SimpleParser parser(recordSymbols);
    for (ScannerToken const& token : rules.tokens)
        parser.AddToken(token.id, token.text, "dropped", token.isScannable);
    parser.SetCommentToken(rules.comment);
    parser.SetTextToken(rules.text);
    parser.SetTabSize(rules.tabSize);
    parser.ProvideSource(source);
    return parser;
}

/// The symbol's line of the trace, as the naive scanner writes it.
inline std::string ToEntry(Symbol const& symbol)
{
    char const* const kinds[] = { "none", "i", "t", "n", "raw" };
    std::string kind = "cut";
    if (symbol.GetSymbolType() == Symbol::Token)
        kind = std::string("#").append(std::to_string(symbol.GetTokenId()));
    else if (symbol.GetState() != Symbol::Unterminated)
        kind = kinds[symbol.GetSymbolType() - Symbol::Undefined];
    return MakeEntry(kind, symbol.GetText(), symbol.GetLine(), symbol.GetColumn());
}

/// The simple parser beside the naive scanner. Choose(n) answers one of 0 to n - 1, from whatever drives the test.
class ScannerTrial
{
public:
    explicit ScannerTrial(std::function<unsigned int(unsigned int)> choose) : Choose(std::move(choose))
    {
        // Few characters, so that tokens, comments and texts overlap.
        char const* const alphabets[] = { "a1.-+ \t", "<=/a\" \n", "/#\"\t\r\n b", "\344=\t '1." };
        m_alphabet = alphabets[Choose(4)];
        m_rules.comment = Choose(2) == 0 ? "//" : MakeText(Choose(4));
        m_rules.text = Choose(2) == 0 ? '"' : MakeText(1)[0];
        m_rules.tabSize = Choose(5);
        for (int id = 0; id < 5; ++id)
        {
            ScannerToken const token{ id, MakeText(1 + Choose(3)), Choose(4) != 0 };
            auto const isSame = [&](ScannerToken const& other) { return other.text == token.text; };
            if (Choose(2) == 0 && std::none_of(m_rules.tokens.begin(), m_rules.tokens.end(), isSame))
                m_rules.tokens.push_back(token);
        }
    }

    std::string MakeText(unsigned int length)
    {
        std::string text(length, ' ');
        for (char& c : text)
            c = m_alphabet[Choose(static_cast<unsigned int>(m_alphabet.size()))];
        return text;
    }

    /// What differs; empty when nothing does. Raw text is asked for now and then.
    std::string Compare(std::string const& source)
    {
        NaiveScanner naive(m_rules, source);
        SimpleParser parser = MakeParser(m_rules, source);
        Symbol symbol;
        for (std::string expected = "first"; !expected.empty();)
        {
            if (Choose(6) == 5)
                naive.InvokePassThrough(), parser.InvokePassThrough();
            expected = naive.Next();
            std::string const entry = parser.GetNextSymbol(symbol) ? ToEntry(symbol) : "";
            if (entry != expected)
                return entry + "instead of " + expected + "in <" + source + ">, comment <" + m_rules.comment + ">";
        }
        return "";
    }

private:
    std::function<unsigned int(unsigned int)> Choose;
    std::string m_alphabet;
    ScannerRules m_rules;
};

} // namespace SimpleParserTests
