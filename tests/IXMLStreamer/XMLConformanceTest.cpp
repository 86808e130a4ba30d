#include "ExpatReferee.h"

#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>

#include <filesystem>

// Every document of an XML conformance suite goes to the reader and to expat: what the reader takes in the strict
// syntax, expat takes as well, without exception, and understands alike. Where the reader takes it leniently, too, it
// tells the same. Mutations make more documents that are nearly XML.

using namespace Vek::Framework::IXMLStreamer::Native;
using namespace XMLConformanceTests;

namespace
{

/// A reader whose description is what expat found in the document.
class DescribedReader
{
public:
    explicit DescribedReader(Node const& document)
    {
        for (auto const& [name, root] : document.children)
            Describe(m_streamer.CreateRootStructureElement(name), root);
        if (document.children.empty())
            m_streamer.CreateRootStructureElement("none");
    }

    bool Read(std::string const& text, XMLStreamer::Syntax syntax)
    {
        trace.clear();
        m_streamer.SetSyntax(syntax);
        return m_streamer.ProcessSource(text);
    }

    std::string trace;

private:
    void Describe(XMLStructureElement& element, Node const& node)
    {
        DescribeAttributes(element);
        element.SetOnBegin(0, [this](auto& begun) { return trace += ToEvent('<', begun.GetElementName(), ""), true; });
        element.SetOnEnd(0, [this](auto& ended) { return trace += ToEvent('>', ended.GetElementName(), ""), true; });
        for (auto const& [name, child] : node.children)
            if (child.IsContent())
                DescribeContent(element.CreateContentElement(name));
            else
                Describe(element.CreateStructureElement(name), child);
    }

    void DescribeContent(XMLContentElement& element)
    {
        DescribeAttributes(element);
        element.SetOnDo(0, [this](auto& read, auto& content)
                        { return trace += ToEvent('=', read.GetElementName(), content), true; });
    }

    void DescribeAttributes(XMLElement& element)
    {
        element.RegisterUnspecifiedAttributes(0, [this](auto& name, auto& value)
                                              { return trace += ToEvent('@', name, value), true; });
    }

    XMLStreamer m_streamer;
};

std::vector<std::filesystem::path> FindDocuments()
{
    std::vector<std::filesystem::path> documents;
    for (auto const& entry : std::filesystem::recursive_directory_iterator(VEK_XML_CONFORMANCE_DIR))
        if (entry.path().extension() == ".xml")
            documents.push_back(entry.path());
    std::sort(documents.begin(), documents.end());
    return documents;
}

std::string Load(std::filesystem::path const& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

constexpr std::string_view c_byteOrderMark = "\357\273\277";

// With the declaration that the reader asks for, if there is none.
std::string WithDeclaration(std::string text)
{
    bool const isMarked = text.starts_with(c_byteOrderMark);
    bool const isWide = text.starts_with("\376\377") || text.starts_with("\377\376");
    if (std::size_t const start = isMarked ? c_byteOrderMark.size() : 0;
        !isWide && text.compare(start, 5, "<?xml") != 0)
        text.insert(start, "<?xml version=\"1.0\"?>\n");
    return text;
}

// Everything behind the declaration in one more element, so that the root's text counts like that of any element.
std::string Wrapped(std::string text)
{
    std::size_t const end = text.find("?>");
    return end == std::string::npos ? text : text.insert(end + 2, "<wrap>") + "</wrap>";
}

// Without the document type, as a reader sees it that has no use for one.
std::string WithoutDocumentType(std::string text)
{
    std::size_t const start = text.find("<!DOCTYPE");
    if (start == std::string::npos)
        return text;
    int depth = 0;
    char quote = '\0';
    for (std::size_t at = start; at < text.size(); ++at)
    {
        char const c = text[at];
        if (quote != '\0')
            quote = c == quote ? '\0' : quote;
        else if (c == '"' || c == '\'')
            quote = c;
        else if (c == '[' || c == ']')
            depth += c == '[' ? 1 : -1;
        else if (c == '>' && depth == 0)
            return text.erase(start, at + 1 - start);
    }
    return text;
}

std::string Mutated(std::string text, std::mt19937& random)
{
    std::string const spices[] = { "<", ">", "&", "\"", "'", "=", " ", "/", "]]>", "--", "<?a?>", "\1", "x", "\344" };
    for (unsigned int count = 1 + static_cast<unsigned int>(random() % 2); count > 0; --count)
    {
        std::size_t const at = 21 + random() % std::max<std::size_t>(1, text.size() - 21); // behind most declarations
        if (at < text.size())
            text.replace(at, random() % 3, spices[random() % std::size(spices)]);
    }
    return text;
}

} // namespace

/// Reads a document in all syntaxes and counts.
class XMLConformance : public ::testing::Test
{
protected:
    void Check(std::string const& text)
    {
        Verdict const verdict(text, Encoding::Windows1252);
        DescribedReader reader(verdict.document);
        bool const isReadLeniently = reader.Read(text, XMLStreamer::Lenient);
        std::string const lenientTrace = reader.trace;
        lenient += isReadLeniently ? 1 : 0;
        onlyLenient += isReadLeniently && !verdict.isAccepted ? 1 : 0;
        if (reader.Read(text, XMLStreamer::Strict))
        {
            ++strict;
            EXPECT_TRUE(verdict.isAccepted) << verdict.reason << "\n" << text;
            EXPECT_EQ(verdict.GetTrace(), reader.trace) << text;
            EXPECT_TRUE(!isReadLeniently || lenientTrace == reader.trace) << text;
        }
        if (reader.Read(text, XMLStreamer::StrictInAnyEncoding))
        {
            ++strictInAny;
            // Which characters the bytes above 127 stand for is the host's business, so expat shall take them as
            // letters.
            bool const isMarked = text.starts_with(c_byteOrderMark);
            Verdict const bytes(isMarked ? text.substr(c_byteOrderMark.size()) : text, Encoding::Bytes);
            EXPECT_TRUE(bytes.isAccepted) << bytes.reason << "\n" << text;
        }
    }

    int lenient = 0;
    int onlyLenient = 0;
    int strict = 0;
    int strictInAny = 0;
};

TEST_F(XMLConformance, WhatIsReadStrictlyIsXML)
{
    std::mt19937 random(20240615);
    auto const documents = FindDocuments();
    EXPECT_GT(documents.size(), 1000U);
    for (auto const& path : documents)
    {
        SCOPED_TRACE(path.string());
        std::string const text = WithDeclaration(Load(path));
        for (std::string const& variant : { text, WithoutDocumentType(text) })
        {
            Check(variant);
            std::string const wrapped = Wrapped(variant);
            Check(wrapped);
            for (int i = 0; i < 3; ++i)
                Check(Mutated(wrapped, random));
        }
    }
    // Enough of every kind to say something. In its own dialect the reader takes much that is no XML.
    EXPECT_GT(strict, 2000);
    EXPECT_GT(strictInAny, strict);
    EXPECT_GT(onlyLenient, 1000);
    RecordProperty("read", std::to_string(lenient) + " leniently, " + std::to_string(strict) + " strictly");
}
