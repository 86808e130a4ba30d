#include <IXMLStreamer/Internal/XMLStreamerReader.h>

#include <IParser/Internal/FindAny.h>
#include <IXMLStreamer/Internal/Blank.h>
#include <IXMLStreamer/Internal/ReaderStates.h>
#include <IXMLStreamer/XMLCodes.h>

#include <algorithm>

// The short way through plain markup: tags whose attributes are written name="value", text with named codes, and
// content followed by its own end tag, all in memory. It recognises what the state table would and calls the same
// consumers, but one construct at a time. Whatever is unusual, incomplete or wrong is left to the state table,
// untouched, from the construct's start on; that is what a null pointer says here. A construct that is taken in part
// leaves the rest to the next one, so that no byte is looked at over and over while tokens in between are consumed one
// by one. Both syntaxes go this way; what the strict one refuses is left to its state table like all that is wrong.

namespace Vek::Framework::IXMLStreamer::Native
{

using namespace Internal;
using IParser::Native::Internal::FindAny;
using IParser::Native::Internal::FindAnyOrControl;

namespace
{

// True for a byte found in the text that begins at `begin` which is all right although it was looked for: a blank, and
// a
// ">" that does not end a "]]>". What stands before the text, a tag or a code, does not end with "]".
bool IsHarmless(char const* begin, char const* at)
{
    return IsBlank(*at) || (*at == '>' && (at - begin < 2 || at[-1] != ']' || at[-2] != ']'));
}

// Where the text in [begin, end) stops: at `stop` or a code. `end` as well when it holds what the strict syntax
// refuses.
template <bool isStrict, char stop>
char const* FindTextEnd(char const* begin, char const* end)
{
    if constexpr (!isStrict)
        return FindAny<stop, '&'>(begin, end);
    constexpr char c_suspect = stop == '<' ? '>' : '<'; // in content, in a value
    for (char const* at = begin;; ++at)
    {
        at = FindAnyOrControl<stop, '&', c_suspect>(at, end);
        if (at == end || *at == stop || *at == '&')
            return at;
        if (!IsHarmless(begin, at))
            return end;
    }
}

} // namespace

template <bool isStrict>
char const* XMLStreamer::Reader::ReadPlainMarkup(char const* at, char const* end, Params& params)
{
    while (!params.isSyntaxError)
    {
        char const* const next = ReadConstruct<isStrict>(at, end, params);
        if (next == nullptr)
            break;
        at = next;
    }
    if (isStrict && (params.nextStateId == StartTag || params.nextStateId == AfterValue))
        m_attributeNames.Keep(); // what is in memory may go
    return at;
}

// For the state tables.
template char const* XMLStreamer::Reader::ReadPlainMarkup<false>(char const*, char const*, Params&);
template char const* XMLStreamer::Reader::ReadPlainMarkup<true>(char const*, char const*, Params&);

template <bool isStrict>
char const* XMLStreamer::Reader::ReadConstruct(char const* at, char const* end, Params& params)
{
    switch (params.nextStateId)
    {
    case ElementLevel:
    case Undescribed:
        return ReadTag<isStrict>(at, end, params);
    case StartTag:
    case AfterValue:
        return ReadStartTagPiece<isStrict>(at, end, params);
    case Content:
        return ReadContent<isStrict>(at, end, params);
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
// table, or to the start of a text that is left to it: its end is not in memory, or it holds what is to be refused.
template <bool isStrict, char stop>
char const* XMLStreamer::Reader::AppendPlainText(char const* at, char const* end)
{
    for (;;)
    {
        char const* const textEnd = FindTextEnd<isStrict, stop>(at, end);
        if (textEnd == end)
            return at;
        m_value.append(at, static_cast<std::size_t>(textEnd - at));
        char const* const next = *textEnd == stop ? nullptr : AppendNamedCode(textEnd, end);
        if (next == nullptr)
            return textEnd;
        at = next;
    }
}

// Where a tag begins, or `at` when something else is to be looked at first. The text before it is blank, or dropped.
template <bool isStrict>
char const* XMLStreamer::Reader::FindTag(char const* at, char const* end)
{
    return isStrict ? std::find_if_not(at, end, IsBlank) : FindAny<'<'>(at, end);
}

// Where the name of an element ends: before a blank, ">" or "/>". Null when it does not end in memory or is no name.
template <bool isStrict>
char const* XMLStreamer::Reader::FindElementNameEnd(char const* name, char const* end) const
{
    char const* const nameEnd =
        isStrict ? m_nameBytes->FindEnd(name, end) : FindAny<' ', '\t', '\r', '\n', '>', '/'>(name, end);
    if (nameEnd == end || nameEnd == name || (*nameEnd == '/' && (nameEnd + 1 == end || nameEnd[1] != '>')))
        return nullptr;
    if (isStrict && (!m_nameBytes->MayBegin(*name) || (!IsBlank(*nameEnd) && *nameEnd != '>' && *nameEnd != '/')))
        return nullptr;
    return nameEnd;
}

template <bool isStrict>
char const* XMLStreamer::Reader::ReadTag(char const* at, char const* end, Params& params)
{
    char const* const tag = FindTag<isStrict>(at, end);
    if (tag != at)
        return tag;
    if (end - tag < 2 || *tag != '<' || tag[1] == '!')
        return nullptr;
    if (tag[1] == '/')
        return IsEndTag(tag, end) ? ReadEndTag(tag, params) : nullptr;

    char const* const name = tag + 1;
    char const* const nameEnd = FindElementNameEnd<isStrict>(name, end);
    if (nameEnd == nullptr)
        return nullptr;
    if constexpr (isStrict)
        m_attributeNames.Clear();
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

template <bool isStrict>
char const* XMLStreamer::Reader::ReadStartTagPiece(char const* at, char const* end, Params& params)
{
    bool const needsBlank = isStrict && params.nextStateId == AfterValue && at != end && !IsBlank(*at);
    while (at != end && IsBlank(*at))
        ++at;
    if (at == end)
        return nullptr;
    if (*at == '>')
        return Consume<&Reader::EndStartTag>(StartTag, params) ? at + 1 : at;
    if (*at != '/')
        return needsBlank ? nullptr : ReadAttribute<isStrict>(at, end, params);
    if (end - at < 2 || at[1] != '>')
        return nullptr;
    constexpr auto c_end = isStrict ? &Reader::EndEmptyElementStrictly : &Reader::EndEmptyElement;
    return Consume<c_end>(StartTag, params) ? at + 2 : at;
}

// Where the name of an attribute ends, before '="'; null when the attribute is not written so or its name is refused.
template <bool isStrict>
char const* XMLStreamer::Reader::FindAttributeNameEnd(char const* name, char const* end) const
{
    char const* const nameEnd =
        isStrict ? m_nameBytes->FindEnd(name, end) : FindAny<' ', '\t', '\r', '\n', '>', '/', '='>(name, end);
    if (nameEnd == name || end - nameEnd < 2 || nameEnd[0] != '=' || nameEnd[1] != '"')
        return nullptr;
    std::string_view const text(name, static_cast<std::size_t>(nameEnd - name));
    if (isStrict && (!m_nameBytes->MayBegin(*name) || m_attributeNames.Contains(text)))
        return nullptr;
    return nameEnd;
}

template <bool isStrict>
char const* XMLStreamer::Reader::ReadAttribute(char const* at, char const* end, Params& params)
{
    char const* const nameEnd = FindAttributeNameEnd<isStrict>(at, end);
    if (nameEnd == nullptr)
        return nullptr;

    m_value.clear();
    char const* const valueEnd = AppendPlainText<isStrict, '"'>(nameEnd + 2, end);
    if (valueEnd == end || *valueEnd != '"')
        return nullptr;
    m_attributeName.assign(at, static_cast<std::size_t>(nameEnd - at));
    if constexpr (isStrict)
        m_attributeNames.Add({ at, m_attributeName.size() });
    constexpr auto c_end = isStrict ? &Reader::EndAttributeStrictly : &Reader::EndAttribute;
    return Consume<c_end>(DoubleQuotedValue, params) ? valueEnd + 1 : valueEnd;
}

template <bool isStrict>
char const* XMLStreamer::Reader::ReadContent(char const* at, char const* end, Params& params)
{
    char const* const contentEnd = AppendPlainText<isStrict, '<'>(at, end);
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
