#pragma once

#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>

#include <streambuf>

namespace XMLStreamerTests
{

using namespace Vek::Framework::IXMLStreamer::Native;

/// A document: a '~' at the front stands for the declaration and a line feed, a '^' for the root's start tag behind
/// them, a '$' at the end for the root's end tag.
inline std::string Expand(std::string document)
{
    bool const isRootOpen = document.starts_with('^');
    if (isRootOpen || document.starts_with('~'))
        document.replace(0, 1, std::string("<?xml version=\"1.0\"?>\n") + (isRootOpen ? "<settings>" : ""));
    if (document.ends_with('$'))
        document.replace(document.size() - 1, 1, "</settings>");
    return document;
}

/// A reader of documents <settings><title/><printer name=""><port/></printer></settings> that writes down what its
/// handlers are told. A handler whose value or name holds "refuse" answers false.
class TracingReader
{
public:
    explicit TracingReader(XMLStreamer::Syntax syntax = XMLStreamer::Lenient)
    {
        streamer.SetSyntax(syntax);
        XMLStructureElement& root = streamer.CreateRootStructureElement("settings");
        Describe(root);
        DescribeContent(root.CreateContentElement("title"));
        XMLStructureElement& printer = root.CreateStructureElement("printer");
        Describe(printer);
        printer.RegisterAttribute(1, "name",
                                  [this](std::string const& name, std::string const& value)
                                  { return Note("@" + name + "=" + value); });
        DescribeContent(printer.CreateContentElement("port"));
        streamer.SetOnUnknownElement(1, [this](std::string const& name) { return Note("?" + name); });
        streamer.SetOnUnknownAttribute(1, [this](std::string const& name, std::string const& value)
                                       { return Note("?@" + name + "=" + value); });
        streamer.SetVersion(1);
    }

    bool Read(std::string const& document)
    {
        trace.clear();
        std::istringstream stream(document);
        return streamer.ProcessSource(stream);
    }

    /// Hands the document out in two reads, so that what is in memory ends at `split`; answers what came of it.
    std::string ReadInTwo(std::string const& document, std::size_t split)
    {
        struct : std::streambuf
        {
            std::streamsize xsgetn(char* target, std::streamsize size) override
            {
                std::string const& piece = pieces[next == 1 ? 1 : 0];
                if (next > 1 || piece.size() > static_cast<std::size_t>(size))
                    return 0;
                ++next;
                return static_cast<std::streamsize>(piece.copy(target, piece.size()));
            }
            std::string pieces[2];
            int next = 0;
        } buffer;
        buffer.pieces[0] = document.substr(0, split);
        buffer.pieces[1] = document.substr(split);
        buffer.next = split == 0 ? 1 : 0;
        trace.clear();
        std::istream stream(&buffer);
        return Describe(streamer.ProcessSource(stream));
    }

    /// "ok" or code, expected symbol and place of the error; then line and column of the parser, path, trace.
    std::string Describe(bool isRead) const
    {
        StreamerError const& error = streamer.GetError();
        std::ostringstream text;
        if (isRead != (error.GetErrorCode() == StreamerError::Ok))
            text << "result and code differ ";
        text << static_cast<int>(error.GetErrorCode()) << " [" << error.GetExpectedSymbol() << "] " << error.GetLine()
             << ':' << error.GetColumn();
        std::string const place = std::to_string(streamer.GetParserResult().line) + ':' +
                                  std::to_string(streamer.GetParserResult().column) + ' ';
        return (text.str() == "0 [] -1:-1" ? "ok" : text.str()) + ' ' + place + streamer.GetOpenElementPath() + ' ' +
               trace;
    }

    XMLStreamer streamer;
    std::string trace;

private:
    bool Note(std::string const& event)
    {
        trace += event + ";";
        return event.find("refuse") == std::string::npos;
    }

    void Describe(XMLStructureElement& element)
    {
        element.SetOnBegin(1, [this](XMLStructureElement const& e) { return Note("<" + e.GetElementName()); });
        element.SetOnEnd(1, [this](XMLStructureElement const& e) { return Note(">" + e.GetElementName()); });
    }

    void DescribeContent(XMLContentElement& element)
    {
        element.SetOnDo(1, [this](XMLContentElement const& e, std::string const& content)
                        { return Note(e.GetElementName() + "=" + content); });
        element.RegisterAttribute(1, "unit",
                                  [this](std::string const& name, std::string const& value)
                                  { return Note("@" + name + "=" + value); });
    }
};

struct OutcomeRow
{
    char const* why;
    char const* document; // as Expand takes it
    char const* outcome;  // as TracingReader describes it
};

template <std::size_t size>
void ExpectOutcomes(OutcomeRow const (&rows)[size], XMLStreamer::Syntax syntax)
{
    for (OutcomeRow const& row : rows)
    {
        SCOPED_TRACE(row.why);
        std::string const document = Expand(row.document);
        TracingReader reader(syntax);
        for (std::size_t split = 0; split == 0 || split < document.size(); ++split)
        {
            ASSERT_EQ(row.outcome, reader.ReadInTwo(document, split)) << "split at " << split;
            std::vector<char> const cut(document.begin(), document.begin() + static_cast<std::ptrdiff_t>(split));
            reader.streamer.ProcessSource(std::string_view(cut.data(), split)); // a sanitizer sees reads behind it
        }
    }
}

} // namespace XMLStreamerTests
