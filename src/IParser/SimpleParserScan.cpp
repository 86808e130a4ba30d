#include <IParser/SimpleParser.h>

#include <Platform/Attributes.h>
#include <Utilities/Internal/ResizeAndOverwrite.h>

#include <cstring>

namespace Vek::Framework::IParser::Native
{

// A space moves the column as any character does; the other blanks begin it anew. The character behind them is counted
// with the last one.
inline char const* SimpleParser::SkipBlanks(char const* at)
{
    if (*at == ' ' && (GetStart(at[1]) & (Blank | Tab)) == 0)
        return at + 1;
    for (; (GetStart(*at) & Blank) != 0; ++at)
        if (*at != ' ')
        {
            m_source.AddLines(*at == '\n');
            m_source.SetColumn(at + 1, 1);
        }
    if ((GetStart(*at) & Tab) != 0)
        m_source.AddColumns(m_tabSize);
    return at;
}

// Reads `copied` bytes from `begin`, however short the text is: a copy of known size needs no call. That there is room
// is asked for so that the compiler need not.
template <std::size_t copied>
inline bool SimpleParser::HandOut(Symbol& symbol, char const* begin, std::size_t size)
{
    if (size > copied || symbol.m_text.capacity() < copied || m_recordSymbols)
        return HandOutAny(symbol, begin, size);
    auto const copy = [=](char* text, std::size_t)
    {
        std::memcpy(text, begin, copied);
        return size;
    };
    Utilities::ResizeAndOverwrite(symbol.m_text, copied, copy);
    return true;
}

VEK_NOINLINE bool SimpleParser::HandOutAny(Symbol& symbol, char const* begin, std::size_t size)
{
    symbol.m_text.assign(begin, size);
    return !m_recordSymbols || Record(symbol);
}

// What may end an identifier without a further look.
inline bool SimpleParser::IsSureEnd(unsigned char start)
{
    return start == Blank || start == TextStart || start == End || start == (TokenStart | SureToken) ||
           start == (TokenStart | SureToken | LoneToken);
}

// Four bytes a round, since counting them one by one is a fifth of the work.
inline char const* SimpleParser::FindEndOfRun(char const* at) const
{
    for (;; at += 4)
    {
        if (GetStart(at[0]) != 0)
            return at;
        if (GetStart(at[1]) != 0)
            return at + 1;
        if (GetStart(at[2]) != 0)
            return at + 2;
        if (GetStart(at[3]) != 0)
            return at + 3;
    }
}

inline bool SimpleParser::GetPlainIdentifier(Symbol& symbol, char const* at)
{
    char const* const end = FindEndOfRun(at + 1);
    if (*at <= '9' || !IsSureEnd(GetStart(*end))) // most begin with a letter
        return GetDoubtfulIdentifier(symbol, at, end);
    symbol.Begin(Symbol::Identifier, m_source.GetLine(), m_source.GetColumn(at));
    m_source.MoveToEndOfWord(end);
    return HandOut<Internal::ScannedText::c_padding>(symbol, at, static_cast<std::size_t>(end - at));
}

VEK_NOINLINE bool SimpleParser::GetDoubtfulIdentifier(Symbol& symbol, char const* at, char const* end)
{
    if (!IsSureEnd(GetStart(*end)))
    {
        m_source.MoveTo(at);
        return GetAnySymbol(symbol);
    }
    std::size_t const size = static_cast<std::size_t>(end - at);
    symbol.Begin(IsNumeric(at, end) ? Symbol::Number : Symbol::Identifier, m_source.GetLine(), m_source.GetColumn(at));
    m_source.MoveToEndOfWord(end);
    return HandOut<Internal::ScannedText::c_padding>(symbol, at, size);
}

inline bool SimpleParser::GetLoneToken(Symbol& symbol, char const* at)
{
    symbol.Begin(Symbol::Token, m_loneTokenIds[static_cast<unsigned char>(*at)], m_source.GetLine(),
                 m_source.GetColumn(at));
    m_source.MoveTo(at + 1);
    return HandOut<1>(symbol, at, 1);
}

// A short way for most symbols: blanks, and then a token or an identifier whose end is beyond doubt. It comes to the
// same as GetAnySymbol, which goes on, blanks and comments passed at most, where more is to be looked at. All that is
// called is called last: so nothing has to be kept meanwhile, which would take longer than most symbols do.
bool SimpleParser::GetNextSymbol(Symbol& symbol)
{
    if (m_passThrough)
        return GetAnySymbol(symbol);
    char const* at = m_source.GetPosition();
    if (GetStart(*at) == Blank)
        at = SkipBlanks(at);
    unsigned char const start = GetStart(*at);
    if (start == 0)
        return GetPlainIdentifier(symbol, at);
    if (start == (TokenStart | SureToken | LoneToken))
        return GetLoneToken(symbol, at);
    m_source.MoveTo(at);
    return GetOtherSymbol(symbol, at);
}

inline bool SimpleParser::GetToken(Symbol& symbol, char const* at)
{
    Internal::Token const* const token = m_tokens.FindToken(at, m_source.GetRemainingBytes());
    if (token == nullptr || !token->IsScannable())
        return GetAnySymbol(symbol);
    std::size_t const size = token->GetText().size();
    symbol.Begin(Symbol::Token, token->GetId(), m_source.GetLine(), m_source.GetColumn(at));
    m_source.MoveTo(at + size);
    return HandOut<Internal::ScannedText::c_padding>(symbol, at, size);
}

VEK_NOINLINE bool SimpleParser::GetOtherSymbol(Symbol& symbol, char const* at)
{
    unsigned char const start = GetStart(*at);
    if (start == TextStart)
        return GetText(symbol);
    if ((start & (Blank | Tab | TextStart | End)) != 0)
        return GetAnySymbol(symbol);
    if ((start & CommentStart) != 0)
        return GetSymbolOrComment(symbol, at);
    return GetToken(symbol, at);
}

VEK_NOINLINE bool SimpleParser::GetSymbolOrComment(Symbol& symbol, char const* at)
{
    return IsComment() ? GetSymbolBehindComment(symbol) : GetToken(symbol, at);
}

// The blanks behind an identifier go with it. They are passed with the next symbol, unless something comes before that
// may read them otherwise.
void SimpleParser::FinishIdentifier()
{
    if (m_source.IsAtEndOfWord() && GetStart() == Blank)
        m_source.MoveTo(SkipBlanks(m_source.GetPosition()));
}

// Ends with the last of comments that follow each other, so that none calls for the next one.
VEK_NOINLINE bool SimpleParser::GetSymbolBehindComment(Symbol& symbol)
{
    do
    {
        SkipComment();
        if (GetStart() == Blank)
            m_source.MoveTo(SkipBlanks(m_source.GetPosition()));
    } while ((GetStart() & (Blank | Tab | TextStart | End)) == 0 && IsComment());
    return GetNextSymbol(symbol);
}

inline std::string_view SimpleParser::TakeText(Symbol& symbol)
{
    char const* const begin = m_source.GetPosition() + 1;
    void const* const delimiter = std::memchr(begin, m_textToken, static_cast<std::size_t>(m_source.GetEnd() - begin));
    char const* const end = delimiter == nullptr ? m_source.GetEnd() : static_cast<char const*>(delimiter);
    symbol.Begin(Symbol::Text, m_source.GetLine(), m_source.GetColumn(end));
    m_source.MoveTo(delimiter == nullptr ? end : end + 1);
    if (delimiter == nullptr)
        symbol.m_state = Symbol::Unterminated;
    return { begin, static_cast<std::size_t>(end - begin) };
}

VEK_NOINLINE bool SimpleParser::GetText(Symbol& symbol)
{
    std::string_view const text = TakeText(symbol);
    return HandOut<Internal::ScannedText::c_padding>(symbol, text.data(), text.size());
}

bool SimpleParser::IsComment() const
{
    if ((GetStart() & CommentStart) == 0)
        return false;
    std::size_t const size = m_commentToken.size();
    if (size != 1 && m_source.GetRemainingBytes() <= size)
        return false;
    // Short as it is, a loop costs less than a call.
    std::size_t same = 1;
    while (same < size && m_source.GetPosition()[same] == m_commentToken[same])
        ++same;
    return same == size;
}

// The line feed is left to be counted as a blank, so that the line moves on by two. It is looked for behind the first
// character, so that a marker that begins with a line feed gets somewhere.
void SimpleParser::SkipComment()
{
    void const* const lineFeed = std::memchr(m_source.GetPosition() + 1, '\n', m_source.GetRemainingBytes() - 1);
    m_source.MoveTo(lineFeed == nullptr ? m_source.GetEnd() : static_cast<char const*>(lineFeed));
    m_source.AddLines(1);
    m_source.SetColumn(1);
}

bool SimpleParser::ScanText(Symbol& symbol)
{
    if ((GetStart() & TextStart) == 0)
        return false;
    if (m_symbolInProgress)
        return true;

    symbol.m_text.assign(TakeText(symbol));
    return true;
}

// The first blank was counted already.
bool SimpleParser::ScanSkipped()
{
    if ((GetStart() & Blank) == 0)
        return false;
    unsigned long long const column = m_source.GetColumn();
    char const* const next = m_source.GetPosition() + 1;
    m_source.SetColumn(next, column);
    m_source.MoveTo(SkipBlanks(next));
    return true;
}

// Takes the character, whatever it is, and those behind it that can be nothing but identifier.
void SimpleParser::ScanIdentifier(Symbol& symbol)
{
    if (!m_symbolInProgress)
    {
        symbol.Begin(m_passThrough ? Symbol::PassThroughBlock : Symbol::Identifier, m_source.GetLine(),
                     m_source.GetColumn());
        symbol.m_text.clear();
        m_symbolInProgress = true;
    }

    char const* const begin = m_source.GetPosition();
    char const* const end = FindEndOfRun(begin + 1);
    symbol.m_text.append(begin, end);
    m_source.MoveTo(end);
}

bool SimpleParser::IsNumeric(char const* at, char const* end) const
{
    auto const skipDigits = [&]
    {
        while (at != end && *at >= '0' && *at <= '9')
            ++at;
    };
    bool const isSigned = *at == '+' || *at == '-';
    if (isSigned && ++at == end)
        return true;
    char const* const digits = at;
    skipDigits();
    if (at != end && *at == m_decimalPoint && at != digits)
    {
        ++at;
        skipDigits();
    }
    return at == end && at != digits;
}

} // namespace Vek::Framework::IParser::Native
