#include <IParser/SimpleParser.h>

#include <Exceptions/NullPointerException.h>

#include <clocale>
#include <cstring>
#include <utility>

namespace Vek::Framework::IParser::Native
{

// What can begin with a byte. A run of bytes without any flag needs no further look.
enum SimpleParser::StartFlag : unsigned char
{
    Blank = 1,
    Tab = 2,
    TokenStart = 4,
    CommentStart = 8,
    TextStart = 16,
    End = 32,      // the zero byte behind the source, which ends every run
    SureToken = 64 // with TokenStart: a token begins here whatever follows
};

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
    m_source.assign(source);
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
    Mark(text.front(), SureToken, m_tokens.IsSureToken(text.front()));
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

// Every blank is counted while it is looked at, and the character behind them with the last one.
inline void SimpleParser::SkipBlanks()
{
    char const* at = GetPosition();
    unsigned long long column = m_column;
    for (; (m_starts[static_cast<unsigned char>(*at)] & Blank) != 0; ++at)
        if (*at == ' ')
            ++column;
        else
        {
            m_line += *at == '\n';
            column = 1;
        }
    m_column = column;
    m_position = static_cast<std::size_t>(at - m_source.data());
    if ((GetStart() & Tab) != 0)
        CalcPosition();
}

inline void SimpleParser::TakeToken(Symbol& symbol, Internal::Token const& token)
{
    symbol.Begin(Symbol::Token, m_line, m_column);
    Advance(token.GetText().size());
    symbol.m_tokenId = token.GetId();
    symbol.m_text = token.GetText();
}

inline bool SimpleParser::BuildPlainIdentifier(Symbol& symbol)
{
    char const* const begin = GetPosition();
    char const* end = begin;
    while (m_starts[static_cast<unsigned char>(*end)] == 0)
        ++end;
    unsigned char const next = m_starts[static_cast<unsigned char>(*end)];
    if (next != Blank && next != TextStart && next != End && next != (TokenStart | SureToken))
        return false;

    symbol.Begin(Symbol::Identifier, m_line, m_column);
    Advance(static_cast<std::size_t>(end - begin));
    if (next == Blank)
        SkipBlanks();
    symbol.m_text.assign(begin, static_cast<std::size_t>(end - begin));
    if (*begin <= '9' && IsNumeric(symbol.m_text)) // most begin with a letter
        symbol.SetKind(Symbol::Number);
    return true;
}

inline bool SimpleParser::BuildPlainToken(Symbol& symbol)
{
    Internal::Token const* const token = m_tokens.FindToken(GetPosition(), GetRemainingBytes());
    if (token == nullptr || !token->IsScannable())
        return false;
    TakeToken(symbol, *token);
    return true;
}

// A short way for most symbols: blanks and then a token, a text or an identifier whose end is beyond doubt. It comes to
// the same as BuildNextSymbol. Where more is to be looked at, it answers false and has passed blanks at most.
inline bool SimpleParser::BuildPlainSymbol(Symbol& symbol)
{
    if (GetStart() == Blank)
        SkipBlanks();
    unsigned char const start = GetStart();
    if (start == 0)
        return BuildPlainIdentifier(symbol);
    if ((start | SureToken) == (TokenStart | SureToken))
        return BuildPlainToken(symbol);
    m_symbolInProgress = false;
    return start == TextStart && ScanText(symbol);
}

bool SimpleParser::GetNextSymbol(Symbol& symbol)
{
    if (!m_passThrough && BuildPlainSymbol(symbol))
        return !m_recordSymbols || Record(symbol);
    return GetAnySymbol(symbol);
}

bool SimpleParser::GetAnySymbol(Symbol& symbol)
{
    m_symbolInProgress = false;
    if (!(m_passThrough ? BuildPassThroughSymbol(symbol) : BuildNextSymbol(symbol)))
    {
        symbol.Begin(Symbol::Undefined, 0, 0);
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

bool SimpleParser::BuildNextSymbol(Symbol& symbol)
{
    while (GetRemainingBytes() != 0)
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

// Counts what moves the place by more than its own column; it runs again for a character that is looked at again.
void SimpleParser::CalcPosition()
{
    if ((GetStart() & (Blank | Tab)) == 0)
        return;
    switch (*GetPosition())
    {
    case '\t':
        m_column += m_tabSize;
        break;
    case '\n':
        ++m_line;
        m_column = 1;
        break;
    case '\r':
        m_column = 1;
        break;
    default:
        ++m_column;
    }
}

void SimpleParser::Advance(std::size_t count)
{
    m_position += count;
    m_column += count;
}

bool SimpleParser::IsComment() const
{
    if ((GetStart() & CommentStart) == 0)
        return false;
    std::size_t const length = m_commentToken.size();
    return length == 1 ||
           (GetRemainingBytes() > length && std::memcmp(GetPosition(), m_commentToken.data(), length) == 0);
}

// The line feed is left to be counted as a blank, so that the line moves on by two. It is looked for behind the first
// character, so that a marker that begins with a line feed gets somewhere.
void SimpleParser::SkipComment()
{
    void const* const lineFeed = std::memchr(GetPosition() + 1, '\n', GetRemainingBytes() - 1);
    m_position = lineFeed == nullptr ? m_source.size()
                                     : static_cast<std::size_t>(static_cast<char const*>(lineFeed) - m_source.data());
    ++m_line;
    m_column = 1;
}

bool SimpleParser::ScanToken(Symbol& symbol)
{
    if ((GetStart() & TokenStart) == 0)
        return false;
    Internal::Token const* const token = m_tokens.FindToken(GetPosition(), GetRemainingBytes());
    if (token == nullptr || !token->IsScannable())
        return false;
    if (m_symbolInProgress)
        return true;

    TakeToken(symbol, *token);
    return true;
}

bool SimpleParser::ScanText(Symbol& symbol)
{
    if ((GetStart() & TextStart) == 0)
        return false;
    if (m_symbolInProgress)
        return true;

    Advance(1);
    char const* const begin = GetPosition();
    void const* const delimiter = std::memchr(begin, m_textToken, GetRemainingBytes());
    std::size_t const length = delimiter == nullptr
                                   ? GetRemainingBytes()
                                   : static_cast<std::size_t>(static_cast<char const*>(delimiter) - begin);
    Advance(length);
    symbol.Begin(Symbol::Text, m_line, m_column);
    symbol.m_text.assign(begin, length);
    if (delimiter != nullptr)
        Advance(1);
    else
        symbol.m_state = Symbol::Unterminated;
    return true;
}

// The first blank was counted already.
bool SimpleParser::ScanSkipped()
{
    if ((GetStart() & Blank) == 0)
        return false;
    ++m_position;
    SkipBlanks();
    return true;
}

// Takes the character, whatever it is, and those behind it that can be nothing but identifier.
void SimpleParser::ScanIdentifier(Symbol& symbol)
{
    if (!m_symbolInProgress)
        symbol.Begin(m_passThrough ? Symbol::PassThroughBlock : Symbol::Identifier, m_line, m_column);
    m_symbolInProgress = true;

    char const* const begin = GetPosition();
    char const* end = begin + 1;
    while (m_starts[static_cast<unsigned char>(*end)] == 0)
        ++end;
    symbol.m_text.append(begin, end);
    Advance(static_cast<std::size_t>(end - begin));
}

bool SimpleParser::IsNumeric(std::string const& text) const
{
    bool hasDigit = false;
    bool hasPoint = false;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        char const c = text[i];
        if (c >= '0' && c <= '9')
            hasDigit = true;
        else if (c == m_decimalPoint && hasDigit && !hasPoint)
            hasPoint = true;
        else if (i != 0 || (c != '+' && c != '-'))
            return false;
    }
    return !text.empty();
}

} // namespace Vek::Framework::IParser::Native
