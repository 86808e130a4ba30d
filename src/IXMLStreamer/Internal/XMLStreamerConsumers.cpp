#include <IXMLStreamer/Internal/XMLStreamerReader.h>

#include <IXMLStreamer/Internal/Declaration.h>
#include <IXMLStreamer/Internal/ExpectedSymbols.h>
#include <IXMLStreamer/Internal/ReaderStates.h>
#include <IXMLStreamer/Internal/XMLStreamerOpenElement.h>
#include <IXMLStreamer/XMLCodes.h>

#include <algorithm>

// The consumers of the reader's states, in the order of a document; those of every tag are in XMLStreamerOpenElement.h.

namespace Vek::Framework::IXMLStreamer::Native
{

using namespace Internal;

// The declaration, in pieces without the blanks between them.
void XMLStreamer::Reader::AppendDeclaration(std::string_view text, Params&)
{
    m_value.append(text).append(1, ' ');
}

void XMLStreamer::Reader::EndDeclaration(Params& params)
{
    m_declaredEncoding = FindEncoding(m_value);
    params.nextStateId = ElementLevel;
}

void XMLStreamer::Reader::BeginComment(Params& params)
{
    m_stateBeforeComment = params.nextStateId;
    params.nextStateId = Comment;
}

void XMLStreamer::Reader::EndComment(Params& params)
{
    params.nextStateId = m_stateBeforeComment;
}

void XMLStreamer::Reader::BeginEndTag(Params& params)
{
    if (m_openElements.IsEmpty())
        RaiseError(StreamerError::InvalidSyntax, c_elementStart, params);
    else
        params.nextStateId = EndTagName;
}

void XMLStreamer::Reader::RefuseMissingElementName(Params& params)
{
    RaiseError(StreamerError::MissingElementName, c_elementName, params);
}

void XMLStreamer::Reader::BeginElement(std::string_view name, Params& params)
{
    params.nextStateId = StartTag;
    if (m_openElements.IsEmpty())
        return BeginRoot(name, params);
    XMLStructureElement const* const parent = GetOpenStructure();
    if (Child const* const child = parent == nullptr ? nullptr : parent->FindChildElement(name); child != nullptr)
        return PushChild(*child);
    m_openElements.Push(name, {}, nullptr);
    RequireAgreement(Call(m_onUnknownElement, std::string(name)), params);
}

void XMLStreamer::Reader::BeginRoot(std::string_view name, Params& params)
{
    if (name == m_root->GetElementName())
        m_openElements.Push(name, { m_root, true }, m_root->m_children.GetFirstPlace());
    else
        RaiseError(StreamerError::InvalidRootElement, m_root->GetElementName(), params);
}

void XMLStreamer::Reader::SetAttributeName(std::string_view name, Params& params)
{
    m_attributeName = name;
    m_value.clear();
    params.nextStateId = AttributeName;
}

void XMLStreamer::Reader::RefuseMissingAttributeName(Params& params)
{
    RaiseError(StreamerError::MissingAttributeName, c_attributeName, params);
}

void XMLStreamer::Reader::AppendValue(std::string_view text, Params&)
{
    m_value += text;
}

void XMLStreamer::Reader::EndAttribute(Params& params)
{
    params.nextStateId = StartTag;
    RequireAgreement(CallAttributeHandler(FindAttribute(m_attributeName), m_attributeName), params);
}

void XMLStreamer::Reader::EndEmptyElement(Params& params)
{
    params.nextStateId = ElementLevel;
    bool const isAgreed = CallBeginHandler() && CallContentHandler(std::string()) && CallEndHandler();
    RequireAgreement(isAgreed, params);
    if (isAgreed)
        m_openElements.Pop();
}

void XMLStreamer::Reader::CheckEndTagName(std::string_view name, Params& params)
{
    params.nextStateId = EndTagEnd;
    if (name != m_openElements.GetName())
        RaiseError(StreamerError::InvalidSyntax, std::string(m_openElements.GetName()), params);
}

// Codes.

void XMLStreamer::Reader::BeginCode(Params& params)
{
    m_stateBeforeCode = params.nextStateId;
    m_code.clear();
    params.nextStateId = NamedCode;
}

void XMLStreamer::Reader::BeginNumericCode(Params& params)
{
    BeginCode(params);
    params.nextStateId = NumericCode;
}

void XMLStreamer::Reader::RefuseHexadecimalCode(Params& params)
{
    RaiseError(StreamerError::HexadecimalCodeNotSupported, c_numericCode, params);
}

void XMLStreamer::Reader::SetCode(std::string_view code, Params&)
{
    m_code = code;
}

void XMLStreamer::Reader::EndCode(Params& params)
{
    char symbol = 0;
    if (XMLCodes::FindSymbol(m_code, symbol))
        AppendDecoded(symbol, params);
    else
        RaiseError(StreamerError::InvalidCode, c_namedCode, params);
}

// From 1 to 255; 0 for what is no such number.
unsigned int XMLStreamer::Reader::GetCodeNumber() const
{
    constexpr unsigned int c_end = 256;
    unsigned int number = 0;
    for (char const digit : m_code)
        number = digit >= '0' && digit <= '9' ? std::min(number * 10 + static_cast<unsigned int>(digit - '0'), c_end)
                                              : c_end;
    return number < c_end ? number : 0;
}

void XMLStreamer::Reader::EndNumericCode(Params& params)
{
    unsigned int const number = GetCodeNumber();
    if (number != 0)
        AppendDecoded(static_cast<char>(number), params);
    else
        RaiseError(StreamerError::InvalidCode, c_numericCode, params);
}

void XMLStreamer::Reader::AppendDecoded(char symbol, Params& params)
{
    m_value += symbol;
    params.nextStateId = m_stateBeforeCode;
}

} // namespace Vek::Framework::IXMLStreamer::Native
