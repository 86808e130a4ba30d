#include <IParser/SimpleParser.h>

#include <Platform/Attributes.h>

#include <cstring>

namespace Vek::Framework::IParser::Native
{

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
    if ((m_starts[static_cast<unsigned char>(*at)] & Tab) != 0)
        m_column += m_tabSize;
}

// Reads up to c_padding bytes from `begin`, however short the text is: a copy of known size needs no call. That the
// text is empty and has room is asked for once more, so that the compiler knows it, too.
inline bool SimpleParser::HandOut(Symbol& symbol, char const* begin, std::size_t size)
{
    std::string& text = symbol.m_text;
    text.clear();
    if (size > c_padding || !text.empty() || text.capacity() < c_padding || m_recordSymbols)
        return HandOutAny(symbol, begin, size);
    text.append(begin, c_padding);
    text.erase(size);
    return true;
}

VEK_NOINLINE bool SimpleParser::HandOutAny(Symbol& symbol, char const* begin, std::size_t size)
{
    symbol.m_text.assign(begin, size);
    return !m_recordSymbols || Record(symbol);
}

inline void SimpleParser::BeginToken(Symbol& symbol, Internal::Token const& token)
{
    symbol.Begin(Symbol::Token, m_line, m_column);
    symbol.m_symbolId = token.GetId();
}

// The BuildPlain... functions answer the size of the text, which is left to be copied, and 0 if they failed.
inline std::size_t SimpleParser::BuildPlainIdentifier(Symbol& symbol)
{
    char const* const begin = GetPosition();
    char const* end = begin + 1;
    while (GetStart(*end) == 0)
        ++end;
    unsigned char const next = GetStart(*end);
    if (next != Blank && next != TextStart && next != End && next != (TokenStart | SureToken) &&
        next != (TokenStart | SureToken | LoneToken))
        return 0;

    std::size_t const size = static_cast<std::size_t>(end - begin);
    symbol.Begin(Symbol::Identifier, m_line, m_column);
    if (*begin <= '9' && IsNumeric({ begin, size })) // most begin with a letter
        symbol.SetKind(Symbol::Number);
    Advance(size);
    if (next == Blank)
        SkipBlanks();
    return size;
}

inline std::size_t SimpleParser::BuildPlainToken(Symbol& symbol)
{
    Internal::Token const* const token = m_tokens.FindToken(GetPosition(), GetRemainingBytes());
    if (token == nullptr || !token->IsScannable())
        return 0;
    BeginToken(symbol, *token);
    std::size_t const size = token->GetText().size();
    Advance(size);
    return size;
}

inline std::size_t SimpleParser::BuildLoneToken(Symbol& symbol)
{
    BeginToken(symbol, m_tokens.GetLongest(*GetPosition()));
    Advance(1);
    return 1;
}

inline std::size_t SimpleParser::BuildPlainSymbol(Symbol& symbol, int start)
{
    if (start == 0)
        return BuildPlainIdentifier(symbol);
    if (start == (TokenStart | SureToken | LoneToken))
        return BuildLoneToken(symbol);
    return BuildPlainToken(symbol);
}

// A short way for most symbols: blanks, and then a token or an identifier whose end is beyond doubt. It comes to the
// same as GetAnySymbol, which goes on, blanks passed at most, where more is to be looked at. All that is called is
// called last: so nothing has to be kept meanwhile, which would take longer than most symbols do.
bool SimpleParser::GetNextSymbol(Symbol& symbol)
{
    if (m_passThrough)
        return GetAnySymbol(symbol);
    if (GetStart() == Blank)
        SkipBlanks();
    int const start = GetStart();
    if (start == TextStart)
        return GetText(symbol);
    if ((start & (Blank | Tab | TextStart | End)) != 0 || ((start & CommentStart) != 0 && IsComment()))
        return GetAnySymbol(symbol);
    char const* const begin = GetPosition();
    std::size_t const size = BuildPlainSymbol(symbol, start & ~CommentStart);
    return size != 0 ? HandOut(symbol, begin, size) : GetAnySymbol(symbol);
}

VEK_NOINLINE bool SimpleParser::GetText(Symbol& symbol)
{
    m_symbolInProgress = false;
    return ScanText(symbol) && (!m_recordSymbols || Record(symbol));
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
    std::size_t const size = m_commentToken.size();
    if (size != 1 && GetRemainingBytes() <= size)
        return false;
    // Short as it is, a loop costs less than a call.
    std::size_t same = 1;
    while (same < size && GetPosition()[same] == m_commentToken[same])
        ++same;
    return same == size;
}

// The line feed is left to be counted as a blank, so that the line moves on by two. It is looked for behind the first
// character, so that a marker that begins with a line feed gets somewhere.
void SimpleParser::SkipComment()
{
    void const* const lineFeed = std::memchr(GetPosition() + 1, '\n', GetRemainingBytes() - 1);
    m_position = lineFeed == nullptr ? m_sourceSize
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

    BeginToken(symbol, *token);
    std::size_t const size = token->GetText().size();
    symbol.m_text.assign(GetPosition(), size);
    Advance(size);
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
    {
        symbol.Begin(m_passThrough ? Symbol::PassThroughBlock : Symbol::Identifier, m_line, m_column);
        symbol.m_text.clear();
        m_symbolInProgress = true;
    }

    char const* const begin = GetPosition();
    char const* end = begin + 1;
    while (m_starts[static_cast<unsigned char>(*end)] == 0)
        ++end;
    symbol.m_text.append(begin, end);
    Advance(static_cast<std::size_t>(end - begin));
}

bool SimpleParser::IsNumeric(std::string_view text) const
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
