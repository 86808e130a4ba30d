#include <IXMLStreamer/Internal/XMLStreamerReader.h>

#include <IXMLStreamer/Internal/Blank.h>
#include <IXMLStreamer/Internal/Declaration.h>
#include <IXMLStreamer/Internal/ExpectedSymbols.h>
#include <IXMLStreamer/Internal/ParserErrorTable.h>
#include <IXMLStreamer/Internal/ReaderStates.h>
#include <IXMLStreamer/Internal/XMLStreamerOpenElement.h>

// The consumers of the strict syntax, where it asks for more, in the order of a document.

namespace Vek::Framework::IXMLStreamer::Native
{

using namespace Internal;

// At the very start, it says that the document is UTF-8.
void XMLStreamer::Reader::PassByteOrderMark(Params& params)
{
    if (params.position != 0 || !m_takesAnyEncoding)
        RaiseError(StreamerError::UnsupportedSyntax, c_strictDeclarationStart, params);
}

void XMLStreamer::Reader::SetDeclarationRest(std::string_view text, Params&)
{
    m_value = text;
}

void XMLStreamer::Reader::EndDeclarationStrictly(Params& params)
{
    EndDeclaration(params);
    if (!IsDeclarationRest(m_value))
        RaiseError(StreamerError::UnsupportedSyntax, c_declarationEnd, params);
    else if (!m_takesAnyEncoding && !IsReadAsWindows1252(m_declaredEncoding))
        RaiseError(StreamerError::UnsupportedSyntax, c_encoding, params);
}

void XMLStreamer::Reader::BeginElementStrictly(std::string_view name, Params& params)
{
    if (!m_nameBytes->IsName(name))
        return RaiseError(StreamerError::UnsupportedSyntax, c_elementName, params);
    BeginAttributeNames();
    BeginElement(name, params);
}

void XMLStreamer::Reader::SetAttributeNameStrictly(std::string_view name, Params& params)
{
    Attribute const* const attribute = FindAttribute(name);
    if (!m_nameBytes->IsName(name) || HasOccurred(attribute, name))
        return RaiseError(StreamerError::UnsupportedSyntax, c_attributeName, params);
    NoteAttribute(attribute, name);
    m_attributeNames.Keep();
    SetAttributeName(name, params);
}

void XMLStreamer::Reader::EndAttributeStrictly(Params& params)
{
    EndAttribute(params);
    params.nextStateId = AfterValue;
}

// An empty root is all of a document.
void XMLStreamer::Reader::EndEmptyElementStrictly(Params& params)
{
    EndEmptyElement(params);
    if (m_openElements.IsEmpty())
        params.nextStateId = AfterRoot;
}

void XMLStreamer::Reader::EndContentStrictly(Params& params)
{
    EndContent(params);
    params.nextStateId = EndTagName;
}

// XML has no code for most control characters.
void XMLStreamer::Reader::EndNumericCodeStrictly(Params& params)
{
    unsigned int const number = GetCodeNumber();
    if (number == 0 || number >= ' ' || IsBlank(static_cast<char>(number)))
        EndNumericCode(params);
    else
        RefuseToken(params);
}

void XMLStreamer::Reader::RefuseText(std::string_view, Params& params)
{
    RaiseError(StreamerError::UnsupportedSyntax, FindStrictExpectation(params.nextStateId), params);
}

void XMLStreamer::Reader::RefuseToken(Params& params)
{
    RaiseError(StreamerError::UnsupportedSyntax, "", params);
}

} // namespace Vek::Framework::IXMLStreamer::Native
