#pragma once

#include <IParser/ParserResult.h>
#include <IXMLStreamer/StreamerError.h>
#include <IXMLStreamer/XMLStructureElement.h>
#include <VekApi.h>

#include <istream>
#include <memory>
#include <string>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native
{

/// Reads an XML document from a stream or from memory in one pass and calls the handlers of the elements described
/// before; no tree of the document is built.
///
/// Text:     names and values are bytes as they stand in the document, Windows-1252 by convention. Codes are decoded in
///           attribute values and content: the names of XMLCodes, and "&#" with a decimal number from 1 to 255. A bare
///           "&" begins a code, whatever follows up to the next ";".
/// Document: begins with <?xml version="1.0"?>, which must be there and written so, with either quotes (an encoding may
///           follow the version, comments may stand before it), then one element. Without it the document never begins,
///           and its end is unexpected. Text that has no place, such as text between elements or after the root, is
///           dropped. An empty root tag ("<settings/>") is read, but does not complete the document: the end of the
///           stream is unexpected then.
/// Dialect:  without DOCTYPE, CDATA and processing instructions. Where elements may stand, their "<" begins an element
///           with an odd name ("!DOCTYPE", "?pi"): another root than the registered one, or an unknown element that
///           nothing ends. In content, a bare "<" ends the content, be it that of "<![CDATA[" or of a child, and the
///           rest is dropped up to the next "/".
/// Strict:   with SetSyntax, what the dialect reads otherwise than XML says is refused with UnsupportedSyntax, line and
///           column: the above, text that would be dropped, also in an element without description, markup that is not
///           well-formed, names that are none, attributes that occur twice, control characters. Comments stand behind
///           the declaration then, and an empty root tag is a document.
/// Handlers: chosen by the version that is set when they are due, so that a handler may set it. An attribute's runs
///           when its value is complete, a structure's begin handler at the end of its start tag, a content handler
///           with the decoded content at the "<" behind it (with "" for an empty element), a structure's end handler
///           before the element is left. One that returns false ends the run with UserDefinedError.
/// Unknown:  an element without description goes to the unknown-element handler and each of its attributes to the
///           unknown-attribute handler; so does everything below it.
/// Errors:   a bad document is never an exception: ProcessSource answers false, GetError says why, and the first error
///           stays. An exception of a handler passes through ProcessSource; the next run starts clean. A stream that
///           fails looks like one that ends too early: ask stream.bad().
/// Cost:     linear in the document; up to 1 MiB to read a stream into, the longest value, the names of the open
/// elements.
///           What one document made the reader allocate beyond that is given back when the run ends. Nesting is not
///           limited; a host that wants a limit counts in its begin and end handlers and answers false.
/// Threads:  a reader and its handlers belong to one thread at a time; readers share nothing that changes.
class VEK_API XMLStreamer
{
public:
    enum Syntax : unsigned int
    {
        Lenient = 0,            ///< the dialect
        Strict = 1,             ///< a declared encoding must be windows-1252, ISO-8859-1 or US-ASCII, whose bytes mean
                                ///< the same here; names may hold letters of Windows-1252
        StrictInAnyEncoding = 2 ///< for hosts that convert names and values themselves, see GetDeclaredEncoding: any
                                ///< encoding is taken as bytes, also in names, and a byte order mark of UTF-8 is passed
    };

    XMLStreamer();
    XMLStreamer(XMLStreamer const&) = delete;
    XMLStreamer& operator=(XMLStreamer const&) = delete;
    ~XMLStreamer();

    /// Describes the root element anew and drops the description made before; during a run, that one lives until the
    /// run ends. The reference stays valid until the root is replaced so.
    XMLStructureElement& CreateRootStructureElement(std::string const& name);

    void SetVersion(unsigned int version);
    unsigned int GetVersion() const noexcept;

    /// Lenient at first; counts from the next run on.
    void SetSyntax(Syntax syntax);
    Syntax GetSyntax() const noexcept;

    void SetOnUnknownElement(unsigned int version, UnknownElementHandler handler);
    void SetOnUnknownAttribute(unsigned int version, AttributeHandler handler);

    /// True when the whole document was read and every handler agreed. The stream is read to its end, in binary mode
    /// if positions matter; it is read in blocks, so where it stands after a failure says nothing.
    /// Throws InvalidStateException when called from a handler of this reader.
    bool ProcessSource(std::istream& stream);

    /// The same for a document in memory, which is not copied and must not change during the run.
    bool ProcessSource(std::string_view text);

    /// The error of the last run; otherwise of a child registered twice since it began. Handlers' errors carry line and
    /// column -1; GetParserResult has the place of every failure.
    StreamerError& GetError() noexcept;
    StreamerError const& GetError() const noexcept;

    /// Where the last run ended: line and column of the text or token at which it failed. Code Ok and line -1 when the
    /// run never began or an exception ended it.
    IParser::Native::ParserResult const& GetParserResult() const noexcept;

    /// What the declaration of the last document says, as it stands there: "UTF-8"; empty when it says nothing. Known
    /// to handlers from the first element on.
    std::string const& GetDeclaredEncoding() const noexcept;

    /// The elements that are open, or were when the last run failed: "/settings/printer", or "/" when there is none.
    std::string GetOpenElementPath() const;

private:
    class VEK_LOCAL Reader;

    std::unique_ptr<Reader> m_reader;
};

} // namespace Vek::Framework::IXMLStreamer::Native
