#include "FilterSymbols.h"

#include <Utilities/WStringHelper.h>

using namespace Vek::Framework::IParser::Native;
using Vek::Framework::Utilities::WStringHelper;

namespace Invoicing
{

namespace
{

// The scanner takes bytes and counts columns in them: in Windows-1252, with blanks for tabs and line breaks, a byte is
// a unit of the line, so that a column is a position.
std::string ToSource(std::wstring line)
{
    for (wchar_t& unit : line)
        if (unit == L'\t' || unit == L'\n' || unit == L'\r' || unit == L'\0')
            unit = L' ';
    std::string bytes;
    unsigned long long position = 0;
    if (!WStringHelper::TryGetWindows1252FromUTF16(line, bytes, position))
        throw FilterRefusal{ { position, L"Dieses Zeichen kommt in keiner Rechnung vor." } };
    return bytes;
}

std::wstring WithoutUmlauts(std::wstring const& word)
{
    std::wstring plain = WStringHelper::ToLowerCase(word);
    WStringHelper::ReplaceAll(plain, L"\u00e4", L"ae");
    WStringHelper::ReplaceAll(plain, L"\u00f6", L"oe");
    WStringHelper::ReplaceAll(plain, L"\u00fc", L"ue");
    return plain;
}

} // namespace

FilterSymbols::FilterSymbols(std::wstring const& line, std::initializer_list<char const*> tokens)
    : m_size(line.size()),
      m_parser(false)
{
    int id = 0;
    for (char const* const token : tokens)
        m_parser.AddToken(id++, token, "", true);
    m_parser.SetCommentToken("");
    m_parser.ProvideSource(ToSource(line));
    Advance();
}

bool FilterSymbols::IsAtEnd() const
{
    return m_symbol.GetSymbolType() == Symbol::Undefined;
}

bool FilterSymbols::IsWord(std::wstring const& word) const
{
    return m_symbol.GetSymbolType() == Symbol::Identifier && WithoutUmlauts(GetPlainText()) == WithoutUmlauts(word);
}

bool FilterSymbols::IsQuoted() const
{
    return m_symbol.GetSymbolType() == Symbol::Text;
}

int FilterSymbols::GetToken() const
{
    return m_symbol.GetTokenId();
}

bool FilterSymbols::TakeWord(std::wstring const& word)
{
    bool const isThere = IsWord(word);
    if (isThere)
        Advance();
    return isThere;
}

bool FilterSymbols::TakeToken(int token)
{
    bool const isThere = GetToken() == token;
    if (isThere)
        Advance();
    return isThere;
}

std::wstring FilterSymbols::GetText(std::wstring const& expectation) const
{
    if (m_symbol.GetState() == Symbol::Unterminated)
        throw FilterRefusal{ { m_size, L"Am Ende fehlt ein Anf\u00fchrungszeichen." } };
    if (IsAtEnd() || GetToken() >= 0)
        Refuse(expectation);
    return GetPlainText();
}

void FilterSymbols::Advance()
{
    m_parser.GetNextSymbol(m_symbol);
}

void FilterSymbols::Refuse(std::wstring const& reason, std::size_t offset) const
{
    throw FilterRefusal{ { GetPosition() + offset, reason } };
}

std::wstring FilterSymbols::GetPlainText() const
{
    return WStringHelper::GetUTF16FromWindows1252(m_symbol.GetText());
}

// The column of a quoted text is that of its closing quote; its position is behind the opening one.
std::size_t FilterSymbols::GetPosition() const
{
    if (IsAtEnd())
        return m_size;
    auto const column = static_cast<std::size_t>(m_symbol.GetColumn()) - 1;
    return IsQuoted() ? column - m_symbol.GetText().size() : column;
}

} // namespace Invoicing
