#include <IXMLStreamer/Internal/XMLStreamerReader.h>

#include <IParser/Internal/FindAny.h>
#include <IXMLStreamer/Internal/Blank.h>
#include <IXMLStreamer/Internal/NameMatch.h>
#include <IXMLStreamer/Internal/ReaderStates.h>
#include <IXMLStreamer/Internal/XMLStreamerOpenElement.h>
#include <IXMLStreamer/XMLCodes.h>

#include <algorithm>

// The short way through plain markup: tags whose attributes are written name="value", text with named codes, and
// content followed by its own end tag, all in memory. It recognises what the state table would and calls the same
// handlers, but one construct at a time. Whatever is unusual, incomplete or wrong is left to the state table,
// untouched, from the construct's start on. Both syntaxes go this way; what the strict one refuses is left to its state
// table like all that is wrong.
//
// Every step moves `at` behind what it took and answers whether the next one can go on there.
//
// Documents repeat themselves: the child or attribute that came next last time is compared with the document first, and
// found or not by that one comparison. A name remembered so was found in a document of the same syntax before, where
// recognition took it whole; so it would again.

namespace Vek::Framework::IXMLStreamer::Native
{

using namespace Internal;
using IParser::Native::Internal::FindAny;
using IParser::Native::Internal::FindAnyOrControl;
using IParser::Native::Internal::FindOther;

namespace
{

inline char const* SkipBlanks(char const* at, char const* end)
{
    for (int looks = 0; looks < 2; ++looks, ++at) // one blank is the most common, and not worth a block
        if (at == end || !IsBlank(*at))
            return at;
    return FindOther<' ', '\t', '\r', '\n'>(at, end);
}

// True where a name before `at`, which is not `end`, ends as that of an element does.
bool EndsElementName(char const* at, char const* end)
{
    return IsBlank(*at) || *at == '>' || (*at == '/' && end - at > 1 && at[1] == '>');
}

// True where a name before `at` ends as that of an attribute usually does.
bool BeginsValue(char const* at, char const* end)
{
    return end - at > 1 && at[0] == '=' && at[1] == '"';
}

// True for a byte found in the text that begins at `begin` which is all right although it was looked for: a blank, and
// a ">" that does not end a "]]>". What stands before the text, a tag or a code, does not end with "]".
bool IsHarmless(char const* begin, char const* at)
{
    return IsBlank(*at) || (*at == '>' && (at - begin < 2 || at[-1] != ']' || at[-2] != ']'));
}

// Where the text in [begin, end) stops: at `stop` or a code. `end` as well when it holds what the strict syntax
// refuses.
template <char stop>
inline char const* FindStrictTextEnd(char const* begin, char const* end)
{
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

template <bool isStrict, char stop>
inline char const* FindTextEnd(char const* begin, char const* end)
{
    return isStrict ? FindStrictTextEnd<stop>(begin, end) : FindAny<stop, '&'>(begin, end);
}

} // namespace

/// The attribute of the innermost element that came next last time. Holds what is described of the element, which a
/// handler may assign to.
class XMLStreamer::Reader::ExpectedAttribute
{
public:
    explicit ExpectedAttribute(XMLElement const* element)
        : m_element(element),
          m_attributes(element == nullptr ? SharedObject<XMLElement::Attributes>() : element->m_attributes),
          m_place(GetFirstPlace())
    {
    }

    /// After handlers.
    void Update()
    {
        if (m_element == nullptr || m_attributes == m_element->m_attributes)
            return;
        m_attributes = m_element->m_attributes;
        m_place = GetFirstPlace();
    }

    Attribute const* Get() const { return m_place == nullptr ? nullptr : *m_place; }

    /// Remembers what came.
    void Pass(Attribute const* attribute)
    {
        if (attribute == nullptr)
            return;
        *m_place = attribute;
        m_place = &attribute->successor;
    }

private:
    Attribute const** GetFirstPlace() const { return m_attributes ? m_attributes->GetFirstPlace() : nullptr; }

    XMLElement const* m_element;
    SharedObject<XMLElement::Attributes> m_attributes;
    Attribute const** m_place;
};

template <bool isStrict>
char const* XMLStreamer::Reader::ReadPlainMarkup(char const* at, char const* end, Params& params)
{
    while (ReadConstruct<isStrict>(at, end, params))
    {
    }
    if (isStrict && (params.nextStateId == StartTag || params.nextStateId == AfterValue))
        m_attributeNames.Keep(); // what is in memory may go
    return at;
}

// For the state tables.
template char const* XMLStreamer::Reader::ReadPlainMarkup<false>(char const*, char const*, Params&);
template char const* XMLStreamer::Reader::ReadPlainMarkup<true>(char const*, char const*, Params&);

template <bool isStrict>
bool XMLStreamer::Reader::ReadConstruct(char const*& at, char const* end, Params& params)
{
    switch (params.nextStateId)
    {
    case ElementLevel:
    case Undescribed:
        return ReadTag<isStrict>(at, end, params);
    case StartTag:
    case AfterValue:
        return ReadStartTag<isStrict>(at, end, params);
    case Content:
        return ReadContent<isStrict>(at, end, params);
    default:
        return false;
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

// Appends the text in [at, end) up to `stop`, codes decoded. Answers how far it came: to `stop`, to a code that is left
// to the state table, or to the start of a text that is left to it: its end is not in memory, or it holds what is to be
// refused.
template <bool isStrict, char stop>
inline char const* XMLStreamer::Reader::AppendPlainText(char const* at, char const* end)
{
    char const* const textEnd = FindTextEnd<isStrict, stop>(at, end);
    if (textEnd == end)
        return at;
    m_value.append(at, static_cast<std::size_t>(textEnd - at));
    return *textEnd == stop ? textEnd : AppendFromCode<isStrict, stop>(textEnd, end);
}

// The same from a code on.
template <bool isStrict, char stop>
char const* XMLStreamer::Reader::AppendFromCode(char const* at, char const* end)
{
    for (;;)
    {
        char const* const text = AppendNamedCode(at, end);
        if (text == nullptr)
            return at;
        at = FindTextEnd<isStrict, stop>(text, end);
        if (at == end)
            return text;
        m_value.append(text, static_cast<std::size_t>(at - text));
        if (*at == stop)
            return at;
    }
}

// The text before a tag is blank, or dropped.
template <bool isStrict>
bool XMLStreamer::Reader::ReadTag(char const*& at, char const* end, Params& params)
{
    at = isStrict ? FindOther<' ', '\t', '\r', '\n'>(at, end) : FindAny<'<'>(at, end);
    if (end - at < 2 || *at != '<' || at[1] == '!')
        return false;
    if (at[1] != '/')
        return ReadTagStart<isStrict>(at, end, params);
    char const* const tagEnd = FindEndTagEnd(at, end);
    return tagEnd != nullptr && ReadEndTag(at, tagEnd, params);
}

template <bool isStrict>
inline bool XMLStreamer::Reader::ReadTagStart(char const*& at, char const* end, Params& params)
{
    char const* const name = at + 1;
    if (Child const* const child = GetExpectedChild(); child != nullptr)
        if (char const* const nameEnd = MatchName(child->name, name, end);
            nameEnd != nullptr && EndsElementName(nameEnd, end))
        {
            if constexpr (isStrict)
                BeginAttributeNames();
            PushChild(*child);
            params.nextStateId = StartTag;
            at = nameEnd;
            return true;
        }

    char const* const nameEnd = FindElementNameEnd<isStrict>(name, end);
    if (nameEnd == nullptr)
        return false;
    if constexpr (isStrict)
        BeginAttributeNames();
    std::string_view const text(name, static_cast<std::size_t>(nameEnd - name));
    bool const isBegun = Consume<&Reader::BeginElement>(TagStart, params, text);
    at = isBegun ? nameEnd : name;
    return isBegun;
}

// Where the name of an element ends. Null when it does not end in memory or is no name.
template <bool isStrict>
char const* XMLStreamer::Reader::FindElementNameEnd(char const* name, char const* end) const
{
    if (isStrict && !m_nameBytes->MayBegin(*name))
        return nullptr;
    char const* const nameEnd =
        isStrict ? m_nameBytes->FindEnd(name, end) : FindAny<' ', '\t', '\r', '\n', '>', '/'>(name, end);
    return nameEnd != end && nameEnd != name && EndsElementName(nameEnd, end) ? nameEnd : nullptr;
}

// Where the ">" of the innermost element's end tag stands, if that begins at `at`; null otherwise.
inline char const* XMLStreamer::Reader::FindEndTagEnd(char const* at, char const* end) const
{
    if (end - at < 3 || at[1] != '/' || m_openElements.IsEmpty())
        return nullptr;
    NameKey<std::string_view> const* const key = m_openElements.GetInnermost().key;
    char const* const tagEnd =
        key != nullptr ? MatchName(*key, at + 2, end) : MatchText(m_openElements.GetName(), at + 2, end);
    return tagEnd != nullptr && *tagEnd == '>' ? tagEnd : nullptr;
}

inline bool XMLStreamer::Reader::ReadEndTag(char const*& at, char const* tagEnd, Params& params)
{
    bool const isEnded = Consume<&Reader::EndElement>(EndTagEnd, params);
    at = isEnded ? tagEnd + 1 : tagEnd;
    return isEnded;
}

// All of a start tag behind the element's name, as far as it is plain.
template <bool isStrict>
bool XMLStreamer::Reader::ReadStartTag(char const*& at, char const* end, Params& params)
{
    ExpectedAttribute expected(GetOpenElement());
    for (;;)
    {
        char const* const piece = SkipBlanks(at, end);
        if (piece == end)
            return false;
        if (*piece == '>')
        {
            bool const isRead = Consume<&Reader::EndStartTag>(StartTag, params);
            at = isRead ? piece + 1 : piece;
            return isRead;
        }
        if (*piece == '/')
        {
            if (end - piece < 2 || piece[1] != '>')
                return false;
            constexpr auto c_end = isStrict ? &Reader::EndEmptyElementStrictly : &Reader::EndEmptyElement;
            bool const isRead = Consume<c_end>(StartTag, params);
            at = isRead ? piece + 2 : piece;
            return isRead;
        }
        if (isStrict && piece == at && params.nextStateId == AfterValue)
            return false;
        if (!ReadAttribute<isStrict>(at, piece, end, expected, params))
            return false;
    }
}

// Where the name of an attribute ends, before '="'; null when the attribute is not written so or its name is refused.
template <bool isStrict>
char const* XMLStreamer::Reader::FindAttributeNameEnd(char const* name, char const* end) const
{
    char const* const nameEnd =
        isStrict ? m_nameBytes->FindEnd(name, end) : FindAny<' ', '\t', '\r', '\n', '>', '/', '='>(name, end);
    if (nameEnd == name || !BeginsValue(nameEnd, end) || (isStrict && !m_nameBytes->MayBegin(*name)))
        return nullptr;
    return nameEnd;
}

// `name` is behind the blanks at `at`.
template <bool isStrict>
inline bool XMLStreamer::Reader::ReadAttribute(char const*& at, char const* name, char const* end,
                                               ExpectedAttribute& expected, Params& params)
{
    Attribute const* attribute = expected.Get();
    char const* nameEnd = attribute == nullptr ? nullptr : MatchName(attribute->name, name, end);
    if (nameEnd == nullptr || !BeginsValue(nameEnd, end))
    {
        nameEnd = FindAttributeNameEnd<isStrict>(name, end);
        if (nameEnd == nullptr)
            return false;
        attribute = FindAttribute({ name, static_cast<std::size_t>(nameEnd - name) });
    }
    std::string_view const text(name, static_cast<std::size_t>(nameEnd - name));
    if (isStrict && HasOccurred(attribute, text))
        return false;

    m_value.clear();
    char const* const valueEnd = AppendPlainText<isStrict, '"'>(nameEnd + 2, end);
    if (valueEnd == end || *valueEnd != '"')
        return false;
    if constexpr (isStrict)
        NoteAttribute(attribute, text);
    if (attribute == nullptr)
        m_attributeName = text;
    expected.Pass(attribute);
    params.nextStateId = DoubleQuotedValue;
    at = valueEnd;
    RequireAgreement(CallAttributeHandler(attribute, attribute == nullptr ? m_attributeName : attribute->name.text),
                     params);
    if (params.isSyntaxError)
        return false;
    expected.Update();
    params.nextStateId = isStrict ? AfterValue : StartTag;
    ++at;
    return true;
}

template <bool isStrict>
bool XMLStreamer::Reader::ReadContent(char const*& at, char const* end, Params& params)
{
    at = AppendPlainText<isStrict, '<'>(at, end);
    char const* const tagEnd = at == end || *at != '<' ? nullptr : FindEndTagEnd(at, end);
    if (tagEnd == nullptr || !Consume<&Reader::EndContent>(Content, params))
        return false;
    return ReadEndTag(at, tagEnd, params);
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
