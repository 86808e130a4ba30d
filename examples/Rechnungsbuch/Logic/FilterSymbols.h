// Private: a filter line cut into symbols, each with its place in the line.

#pragma once

#include "InputFault.h"

#include <IParser/SimpleParser.h>

#include <cstddef>
#include <initializer_list>
#include <string>

namespace Invoicing
{

/// Thrown by what reads a filter line and caught where reading began.
struct FilterRefusal
{
    InputFault fault;
};

/// Walks the line from symbol to symbol with the library's scanner.
class FilterSymbols
{
public:
    /// Tokens by their ids from 0 on. Throws FilterRefusal for a character that Windows-1252 does not have.
    FilterSymbols(std::wstring const& line, std::initializer_list<char const*> tokens);

    bool IsAtEnd() const;
    /// Letters in either case, umlauts also as ae, oe, ue.
    bool IsWord(std::wstring const& word) const;
    bool IsQuoted() const;
    /// -1 for what is no token.
    int GetToken() const;

    /// Step over the symbol if it is that one.
    bool TakeWord(std::wstring const& word);
    bool TakeToken(int token);

    /// The text of a word, a number or a quoted text. Throws FilterRefusal with `expectation` for anything else, and
    /// for a quoted text that does not end.
    std::wstring GetText(std::wstring const& expectation) const;
    void Advance();

    /// Throws FilterRefusal: at the symbol, or so many units behind its beginning.
    [[noreturn]] void Refuse(std::wstring const& reason, std::size_t offset = 0) const;

private:
    std::wstring GetPlainText() const;
    std::size_t GetPosition() const;

    std::size_t m_size;
    Vek::Framework::IParser::Native::SimpleParser m_parser;
    Vek::Framework::IParser::Native::Symbol m_symbol;
};

} // namespace Invoicing
