#include <IXMLStreamer/Internal/XMLStreamerReader.h>

#include <IParser/Internal/FindAny.h>
#include <IXMLStreamer/Internal/ReaderStates.h>
#include <IXMLStreamer/XMLCodes.h>

#include <algorithm>

// The short way through plain markup: tags whose attributes are written name="value", text with named codes, and
// content followed by its own end tag, all in memory. It recognises what the state table would and calls the same
// consumers, but one construct at a time. Whatever is unusual, incomplete or wrong is left to the state table,
// untouched, from the construct's start on; that is what a null pointer says here. A construct that is taken in part
// leaves the rest to the next one, so that no byte is looked at over and over while tokens in between are consumed one
// by one.

namespace Vek::Framework::IXMLStreamer::Native
{

using namespace Internal;
using IParser::Native::Internal::FindAny;

namespace
{

constexpr bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

} // namespace

void XMLStreamer::Reader::RegisterPlainMarkup(State& state)
{
    state.RegisterBulkConsumer([this](char const* begin, char const* end, Params& params)
                               { return ReadPlainMarkup(begin, end, params); });
}

char const* XMLStreamer::Reader::ReadPlainMarkup(char const* at, char const* end, Params& params)
{
    while (!params.isSyntaxError)
    {
        char const* const next = ReadConstruct(at, end, params);
        if (next == nullptr)
            break;
        at = next;
    }
    return at;
}

char const* XMLStreamer::Reader::ReadConstruct(char const* at, char const* end, Params& params)
{
    switch (params.nextStateId)
    {
    case ElementLevel:
    case Undescribed:
        return ReadTag(at, end, params);
    case StartTag:
        return ReadStartTagPiece(at, end, params);
    case Content:
        return ReadContent(at, end, params);
    default:
        return nullptr;
    }
}

// Calls a consumer as the state table would in `state`. On refusal the run ends in that state.
template <auto consumer, class... Text>
bool XMLStreamer::Reader::Consume(unsigned int state, Params& params, Text const&... text)
{
    Params own{ state, false, false, 0 };
    (this->*consumer)(text..., own);
    params.isSyntaxError = own.isSyntaxError;
    params.nextStateId = own.isSyntaxError ? state : own.nextStateId;
    return !own.isSyntaxError;
}

// Appends the text up to `stop`, codes decoded. Answers how far it came: to `stop`, to a code that is left to the state
// table, or to the start of a text whose end is not in memory.
template <char stop>
char const* XMLStreamer::Reader::AppendPlainText(char const* at, char const* end)
{
    for (;;)
    {
        char const* const textEnd = FindAny<stop, '&'>(at, end);
        if (textEnd == end)
            return at;
        m_value.append(at, static_cast<std::size_t>(textEnd - at));
        char const* const next = *textEnd == stop ? nullptr : AppendNamedCode(textEnd, end);
        if (next == nullptr)
            return textEnd;
        at = next;
    }
}

char const* XMLStreamer::Reader::ReadTag(char const* at, char const* end, Params& params)
{
    char const* const tag = FindAny<'<'>(at, end);
    if (tag != at)
        return tag; // the text before it is dropped
    if (end - tag < 2 || tag[1] == '!')
        return nullptr;
    if (tag[1] == '/')
        return IsEndTag(tag, end) ? ReadEndTag(tag, params) : nullptr;

    char const* const name = tag + 1;
    char const* const nameEnd = FindAny<' ', '\t', '\r', '\n', '>', '/'>(name, end);
    if (nameEnd == end || nameEnd == name || (*nameEnd == '/' && (nameEnd + 1 == end || nameEnd[1] != '>')))
        return nullptr;
    std::string_view const text(name, static_cast<std::size_t>(nameEnd - name));
    return Consume<&Reader::BeginElement>(TagStart, params, text) ? nameEnd : name;
}

// "</", the name of the innermost element, ">".
bool XMLStreamer::Reader::IsEndTag(char const* at, char const* end) const
{
    if (m_openElements.IsEmpty())
        return false;
    std::string_view const name = m_openElements.GetName();
    std::string_view const rest(at, static_cast<std::size_t>(end - at));
    return rest.size() > name.size() + 2 && rest[1] == '/' && rest[name.size() + 2] == '>' &&
           rest.compare(2, name.size(), name) == 0;
}

char const* XMLStreamer::Reader::ReadEndTag(char const* at, Params& params)
{
    char const* const tagEnd = at + 2 + m_openElements.GetName().size();
    return Consume<&Reader::EndElement>(EndTagEnd, params) ? tagEnd + 1 : tagEnd;
}

char const* XMLStreamer::Reader::ReadStartTagPiece(char const* at, char const* end, Params& params)
{
    while (at != end && IsBlank(*at))
        ++at;
    if (at == end)
        return nullptr;
    if (*at == '>')
        return Consume<&Reader::EndStartTag>(StartTag, params) ? at + 1 : at;
    if (*at != '/')
        return ReadAttribute(at, end, params);
    if (end - at < 2 || at[1] != '>')
        return nullptr;
    return Consume<&Reader::EndEmptyElement>(StartTag, params) ? at + 2 : at;
}

char const* XMLStreamer::Reader::ReadAttribute(char const* at, char const* end, Params& params)
{
    char const* const nameEnd = FindAny<' ', '\t', '\r', '\n', '>', '/', '='>(at, end);
    if (nameEnd == at || end - nameEnd < 2 || nameEnd[0] != '=' || nameEnd[1] != '"')
        return nullptr;

    m_value.clear();
    char const* const valueEnd = AppendPlainText<'"'>(nameEnd + 2, end);
    if (valueEnd == end || *valueEnd != '"')
        return nullptr;
    m_attributeName.assign(at, static_cast<std::size_t>(nameEnd - at));
    return Consume<&Reader::EndAttribute>(DoubleQuotedValue, params) ? valueEnd + 1 : valueEnd;
}

char const* XMLStreamer::Reader::ReadContent(char const* at, char const* end, Params& params)
{
    char const* const contentEnd = AppendPlainText<'<'>(at, end);
    if (contentEnd == end || *contentEnd != '<' || !IsEndTag(contentEnd, end))
        return contentEnd == at ? nullptr : contentEnd;
    if (!Consume<&Reader::EndContent>(Content, params))
        return contentEnd;
    return ReadEndTag(contentEnd, params);
}

char const* XMLStreamer::Reader::AppendNamedCode(char const* at, char const* end)
{
    constexpr std::ptrdiff_t c_longestCode = 8; // with "&" and ";"
    char const* const limit = at + std::min(end - at, c_longestCode);
    char const* const codeEnd = std::find(at, limit, ';');
    char symbol = 0;
    m_code.assign(at + 1, codeEnd);
    if (codeEnd == limit || !XMLCodes::FindSymbol(m_code, symbol))
        return nullptr;
    m_value += symbol;
    return codeEnd + 1;
}

} // namespace Vek::Framework::IXMLStreamer::Native
