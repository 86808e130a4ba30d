#pragma once

#include <IParser/ParserResult.h>
#include <IXMLStreamer/StreamerError.h>
#include <IXMLStreamer/XMLStructureElement.h>
#include <VekApi.h>

#include <istream>
#include <memory>
#include <string>

namespace Vek::Framework::IXMLStreamer::Native
{

/// Reads an XML document from a stream in one pass and calls the handlers of the elements described before; no tree of
/// the document is built.
///
/// Text:     names and values are bytes as they stand in the document, Windows-1252 by convention. Codes are decoded in
///           attribute values and content: the names of XMLCodes, and "&#" with a decimal number from 1 to 255.
/// Document: begins with <?xml version="1.0"?> (comments may stand before it), then one element. Text that has no
///           place, such as text between elements or after the root, is dropped. An empty root tag ("<settings/>") is
///           read, but does not complete the document: the end of the stream is unexpected then.
/// Dialect:  without DOCTYPE, CDATA and processing instructions. Where elements may stand, their "<" begins an element
///           with an odd name ("!DOCTYPE", "?pi"): another root than the registered one, or an unknown element that
///           nothing ends. In content, "<![CDATA[" ends the content, and the rest is dropped up to the next "/".
/// Handlers: chosen by the version that is set when they are due, so that a handler may set it. An attribute's runs
///           when its value is complete, a structure's begin handler at the end of its start tag, a content handler
///           with the decoded content at the "<" behind it (with "" for an empty element), a structure's end handler
///           before the element is left. One that returns false ends the run with UserDefinedError.
/// Unknown:  an element without description goes to the unknown-element handler and each of its attributes to the
///           unknown-attribute handler; so does everything below it.
/// Errors:   a bad document is never an exception: ProcessSource answers false, GetError says why, and the first error
///           stays. An exception of a handler passes through ProcessSource; the next run starts clean.
/// Cost:     linear in the document, 1 MiB to read into, the longest value, and the names of the open elements.
class VEK_API XMLStreamer
{
public:
    XMLStreamer();
    XMLStreamer(XMLStreamer const&) = delete;
    XMLStreamer& operator=(XMLStreamer const&) = delete;
    ~XMLStreamer();

    /// Describes the root element anew and drops the description made before; during a run, that one lives until the
    /// run ends. The reference stays valid until the root is replaced so.
    XMLStructureElement& CreateRootStructureElement(std::string const& name);

    void SetVersion(unsigned int version);
    unsigned int GetVersion() const noexcept;

    void SetOnUnknownElement(unsigned int version, UnknownElementHandler handler);
    void SetOnUnknownAttribute(unsigned int version, AttributeHandler handler);

    /// True when the whole document was read and every handler agreed. The stream is read to its end, in binary mode
    /// if positions matter; it is read in blocks, so where it stands after a failure says nothing.
    /// Throws InvalidStateException when called from a handler of this reader.
    bool ProcessSource(std::istream& stream);

    /// The error of the last run; otherwise of a child registered twice since it began. Handlers' errors carry line and
    /// column -1; GetParserResult has the place of every failure.
    StreamerError& GetError() noexcept;
    StreamerError const& GetError() const noexcept;

    /// Where the last run ended: line and column of the text or token at which it failed. Code Ok and line -1 when the
    /// run never began or an exception ended it.
    IParser::Native::ParserResult const& GetParserResult() const noexcept;

    /// The elements that are open, or were when the last run failed: "/settings/printer", or "/" when there is none.
    std::string GetOpenElementPath() const;

private:
    class VEK_LOCAL Reader;

    std::unique_ptr<Reader> m_reader;
};

} // namespace Vek::Framework::IXMLStreamer::Native
