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
    m_source.Assign(source, std::strlen(source));
    m_recordedSymbols.Clear();
}

void SimpleParser::ProvideSource(std::string const& source)
{
    ProvideSource(source.c_str());
}

bool SimpleParser::AddToken(int id, std::string const& text, std::string const& description, bool isScannable)
{
    FinishIdentifier();
    if (!m_tokens.AddToken(id, text, description, isScannable))
        return false;
    Mark(text.front(), TokenStart, true);
    bool const isSure = m_tokens.IsSureToken(text.front());
    Mark(text.front(), SureToken, isSure);
    Internal::Token const& longest = m_tokens.GetLongest(text.front());
    Mark(text.front(), LoneToken, isSure && longest.GetText().size() == 1);
    m_loneTokenIds[static_cast<unsigned char>(text.front())] = longest.GetId();
    return true;
}

Internal::Token* SimpleParser::GetToken(int id) const
{
    return m_tokens.FindToken(id);
}

void SimpleParser::SetCommentToken(std::string const& commentToken)
{
    FinishIdentifier();
    std::string marker(commentToken);
    if (!m_commentToken.empty())
        Mark(m_commentToken.front(), CommentStart, false);
    m_commentToken.swap(marker);
    if (!m_commentToken.empty())
        Mark(m_commentToken.front(), CommentStart, true);
}

void SimpleParser::SetTextToken(char textToken)
{
    FinishIdentifier();
    Mark(m_textToken, TextStart, false);
    m_textToken = textToken;
    Mark(m_textToken, TextStart, true);
}

void SimpleParser::SetTabSize(unsigned int tabSize)
{
    FinishIdentifier();
    m_tabSize = tabSize;
}

void SimpleParser::InvokePassThrough()
{
    FinishIdentifier();
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
    if (symbol.m_symbolType == Symbol::Identifier &&
        IsNumeric(symbol.m_text.data(), symbol.m_text.data() + symbol.m_text.size()))
    {
        symbol.m_symbolType = Symbol::Number;
        symbol.m_symbolId = Symbol::Number;
    }
    return !m_recordSymbols || Record(symbol);
}

bool SimpleParser::Record(Symbol& symbol)
{
    symbol.m_prevSymbol = m_recordedSymbols.GetLast();
    m_recordedSymbols.Add(symbol);
    return true;
}

bool SimpleParser::BuildNextSymbol(Symbol& symbol)
{
    while (m_source.GetRemainingBytes() != 0)
    {
        CalcPosition();
        if (IsComment())
        {
            if (m_symbolInProgress)
                return true;
            SkipComment();
        }
        else if (ScanToken(symbol) || ScanText(symbol))
            return true;
        else if (!ScanSkipped())
            ScanIdentifier(symbol);
        else if (m_symbolInProgress)
            return true;
    }
    return m_symbolInProgress;
}

bool SimpleParser::BuildPassThroughSymbol(Symbol& symbol)
{
    while (m_source.GetRemainingBytes() != 0)
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

// Counts what moves the place by more than its own column; it runs again for a character that is looked at again.
void SimpleParser::CalcPosition()
{
    if ((GetStart() & (Blank | Tab)) == 0)
        return;
    switch (*m_source.GetPosition())
    {
    case '\t':
        m_source.AddColumns(m_tabSize);
        break;
    case '\n':
        m_source.AddLines(1);
        m_source.SetColumn(1);
        break;
    case '\r':
        m_source.SetColumn(1);
        break;
    default:
        m_source.AddColumns(1);
    }
}

bool SimpleParser::ScanToken(Symbol& symbol)
{
    if ((GetStart() & TokenStart) == 0)
        return false;
    Internal::Token const* const token = m_tokens.FindToken(m_source.GetPosition(), m_source.GetRemainingBytes());
    if (token == nullptr || !token->IsScannable())
        return false;
    if (m_symbolInProgress)
        return true;

    std::size_t const size = token->GetText().size();
    symbol.Begin(Symbol::Token, token->GetId(), m_source.GetLine(), m_source.GetColumn());
    symbol.m_text.assign(m_source.GetPosition(), size);
    m_source.MoveTo(m_source.GetPosition() + size);
    return true;
}

} // namespace Vek::Framework::IParser::Native
