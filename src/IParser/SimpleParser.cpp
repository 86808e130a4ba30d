#include <IParser/SimpleParser.h>

#include <Exceptions/NullPointerException.h>

#include <clocale>
#include <cstring>

namespace Vek::Framework::IParser::Native
{

SimpleParser::SimpleParser(bool recordSymbols)
    : m_decimalPoint(*std::localeconv()->decimal_point),
      m_recordSymbols(recordSymbols)
{
    for (char const blank : { '\n', '\r', ' ' })
        Mark(blank, Blank, true);
    Mark('\t', Tab, true);
    Mark('\0', End, true);
    SetCommentToken("//");
    SetTextToken('"');
}

SimpleParser::SimpleParser(SimpleParser const& other) = default;

SimpleParser& SimpleParser::operator=(SimpleParser const& other) = default;

SimpleParser::~SimpleParser() = default;

void SimpleParser::ProvideSource(char const* source)
{
    if (source == nullptr)
        throw NullPointerException();
    std::size_t const size = std::strlen(source);
    m_source.reserve(size + c_padding);
    m_source.assign(source, size).append(c_padding, '\0');
    m_sourceSize = size;
    m_recordedSymbols.Clear();
    m_position = 0;
    m_line = 1;
    m_column = 1;
}

void SimpleParser::ProvideSource(std::string const& source)
{
    ProvideSource(source.c_str());
}

bool SimpleParser::AddToken(int id, std::string const& text, std::string const& description, bool isScannable)
{
    if (!m_tokens.AddToken(id, text, description, isScannable))
        return false;
    Mark(text.front(), TokenStart, true);
    bool const isSure = m_tokens.IsSureToken(text.front());
    Mark(text.front(), SureToken, isSure);
    Mark(text.front(), LoneToken, isSure && m_tokens.GetLongest(text.front()).GetText().size() == 1);
    return true;
}

Internal::Token* SimpleParser::GetToken(int id) const
{
    return m_tokens.FindToken(id);
}

void SimpleParser::SetCommentToken(std::string const& commentToken)
{
    std::string marker(commentToken);
    if (!m_commentToken.empty())
        Mark(m_commentToken.front(), CommentStart, false);
    m_commentToken.swap(marker);
    if (!m_commentToken.empty())
        Mark(m_commentToken.front(), CommentStart, true);
}

void SimpleParser::SetTextToken(char textToken)
{
    Mark(m_textToken, TextStart, false);
    m_textToken = textToken;
    Mark(m_textToken, TextStart, true);
}

void SimpleParser::SetTabSize(unsigned int tabSize)
{
    m_tabSize = tabSize;
}

void SimpleParser::InvokePassThrough()
{
    m_passThrough = true;
}

void SimpleParser::Mark(char first, StartFlag flag, bool isSet)
{
    unsigned char& start = m_starts[static_cast<unsigned char>(first)];
    start = static_cast<unsigned char>(isSet ? start | flag : start & ~flag);
}

void SimpleParser::ForEachSymbol(std::function<void(Symbol const&)> const& function) const
{
    m_recordedSymbols.ForEach(function);
}

bool SimpleParser::GetAnySymbol(Symbol& symbol)
{
    m_symbolInProgress = false;
    if (!(m_passThrough ? BuildPassThroughSymbol(symbol) : BuildNextSymbol(symbol)))
    {
        symbol.Begin(Symbol::Undefined, 0, 0);
        symbol.m_text.clear();
        return false;
    }
    if (symbol.m_symbolType == Symbol::Identifier && IsNumeric(symbol.m_text))
        symbol.SetKind(Symbol::Number);
    return !m_recordSymbols || Record(symbol);
}

bool SimpleParser::Record(Symbol& symbol)
{
    symbol.m_prevSymbol = m_recordedSymbols.GetLast();
    m_recordedSymbols.Add(symbol);
    return true;
}

bool SimpleParser::BuildPassThroughSymbol(Symbol& symbol)
{
    while (GetRemainingBytes() != 0)
    {
        CalcPosition();
        if (ScanToken(symbol))
        {
            m_passThrough = false;
            return true;
        }
        ScanIdentifier(symbol);
    }
    return m_symbolInProgress;
}

} // namespace Vek::Framework::IParser::Native
