#include "XMLStreamerFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <streambuf>

using namespace XMLStreamerTests;

namespace
{

struct Row
{
    char const* why;
    char const* document; // a '~' at the front stands for the declaration and a line feed
    char const* outcome;  // code [expected symbol] error line:column parser line:column path trace
};

Row const c_rows[] = {
    { "plain document", "~<settings><title>a</title></settings>", "0 [] -1:-1 2:38 / <settings;title=a;>settings;" },
    { "nested structure with attribute",
      "~<settings>\n\t<printer name=\"x\">\n\t\t<port>USB</port>\n\t</printer>\n</settings>\n",
      "0 [] -1:-1 7:1 / <settings;@name=x;<printer;port=USB;>printer;>settings;" },
    { "single quotes hold double ones", "~<settings><printer name='a\"b'/></settings>",
      "0 [] -1:-1 2:43 / <settings;@name=a\"b;<printer;>printer;>settings;" },
    { "blanks wherever tokens are apart", "~< settings >< printer name = \"x\" / >< / settings >",
      "6 [] 2:51 2:51 /settings/printer <settings;@name=x;" },
    { "blanks in tags that skip them", "~< settings >< printer  name\t=\n\"x\" />\r\n</ settings >",
      "0 [] -1:-1 4:14 / <settings;@name=x;<printer;>printer;>settings;" },
    { "text between elements is dropped", "~<settings>x<printer/>y</settings>z",
      "0 [] -1:-1 2:35 / <settings;<printer;>printer;>settings;" },
    { "structure in an empty tag begins and ends", "~<settings><printer name='x'/></settings>",
      "0 [] -1:-1 2:41 / <settings;@name=x;<printer;>printer;>settings;" },
    { "content in an empty tag is empty", "~<settings><title/></settings>",
      "0 [] -1:-1 2:30 / <settings;title=;>settings;" },
    { "empty content", "~<settings><title></title></settings>", "0 [] -1:-1 2:37 / <settings;title=;>settings;" },
    { "blank content is content", "~<settings><title> \n</title></settings>",
      "0 [] -1:-1 3:20 / <settings;title= \n;>settings;" },
    { "comment does not cut content", "~<settings><title>a<!-- <b> & -- -->c</title></settings>",
      "0 [] -1:-1 2:56 / <settings;title=ac;>settings;" },
    { "comments at every level",
      "<!--0--><?xml version='1.0'?><!--1--><settings><!--2--><x><!--3--></x></settings><!--4-->",
      "0 [] -1:-1 1:90 / <settings;?x;>settings;" },
    { "comment of dashes", "~<settings><!-----><!-- -a--></settings>", "0 [] -1:-1 2:40 / <settings;>settings;" },
    { "attribute of a content element", "~<settings><title unit='mm'>5</title></settings>",
      "0 [] -1:-1 2:48 / <settings;@unit=mm;title=5;>settings;" },
    { "unknown attribute", "~<settings lang='de'/>", "6 [] 2:22 2:22 / ?@lang=de;<settings;>settings;" },
    { "unknown attribute of a described element", "~<settings><printer port='1'></printer></settings>",
      "0 [] -1:-1 2:50 / <settings;?@port=1;<printer;>printer;>settings;" },
    { "unknown element and all below it",
      "~<settings><x a='1'>t<title b='2'>u</title><y/></x><title>v</title></settings>",
      "0 [] -1:-1 2:78 / <settings;?x;?@a=1;?title;?@b=2;?y;title=v;>settings;" },
    { "unknown empty element", "~<settings><x/><title>v</title></settings>",
      "0 [] -1:-1 2:42 / <settings;?x;title=v;>settings;" },
    { "text in an unknown element may hold codes", "~<settings><x>&nope; &#x41;</x></settings>",
      "0 [] -1:-1 2:42 / <settings;?x;>settings;" },
    { "codes in values and content",
      "~<settings><printer name='&lt;&amp;&#65;&auml;'><port>&quot;&#10;&euro;</port></printer></settings>",
      "0 [] -1:-1 2:99 / <settings;@name=<&A\344;<printer;port=\"\n\200;>printer;>settings;" },
    { "code at the border of texts", "~<settings><title>&amp;&amp;a&amp;</title></settings>",
      "0 [] -1:-1 2:53 / <settings;title=&&a&;>settings;" },
    { "bytes above 127 stay", "~<settings><title>\344\200\377</title></settings>",
      "0 [] -1:-1 2:40 / <settings;title=\344\200\377;>settings;" },
    { "attributes may repeat", "~<settings><printer name='1' name='2'/></settings>",
      "0 [] -1:-1 2:50 / <settings;@name=1;@name=2;<printer;>printer;>settings;" },
    { "attribute without value is replaced by the next", "~<settings><printer name port='1'/></settings>",
      "0 [] -1:-1 2:46 / <settings;@name=1;<printer;>printer;>settings;" },
    { "declaration with more in it", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><settings></settings>",
      "0 [] -1:-1 1:65 / <settings;>settings;" },
    { "text before the declaration is dropped", "x<?xml version='1.0'?><settings></settings>",
      "0 [] -1:-1 1:44 / <settings;>settings;" },
    { "text after the root is dropped", "~<settings></settings> trailing <x>",
      "0 [] -1:-1 2:35 / <settings;>settings;" },
    { "an empty root tag does not complete the document", "~<settings/>", "6 [] 2:12 2:12 / <settings;>settings;" },
    { "after an empty root tag another may follow", "~<settings/><settings></settings>",
      "0 [] -1:-1 2:33 / <settings;>settings;<settings;>settings;" },
    { "nothing at all", "", "6 [] 1:1 1:1 / " },
    { "no declaration", "<settings></settings>", "6 [] 1:22 1:22 / " },
    { "other version", "<?xml version=\"1.1\"?><settings></settings>", "6 [] 1:43 1:43 / " },
    { "declaration without end", "<?xml version='1.0'><settings></settings>", "6 [] 1:42 1:42 / " },
    { "only a declaration", "~", "6 [] 2:1 2:1 / " },
    { "end inside the root", "~<settings><title>a</title>", "6 [] 2:27 2:27 /settings <settings;title=a;" },
    { "end inside a start tag", "~<settings><printer name='x'", "6 [] 2:28 2:28 /settings/printer <settings;@name=x;" },
    { "end inside a value", "~<settings><printer name='x", "6 [] 2:27 2:27 /settings/printer <settings;" },
    { "end inside content", "~<settings><title>abc", "6 [] 2:21 2:21 /settings/title <settings;" },
    { "end inside a comment", "~<settings><!-- abc", "6 [] 2:19 2:19 /settings <settings;" },
    { "end inside a code", "~<settings><title>&am", "6 [] 2:21 2:21 /settings/title <settings;" },
    { "other root", "~<options></options>", "3 [settings] -1:-1 2:2 / " },
    { "DOCTYPE is no element of this dialect", "~<!DOCTYPE settings><settings></settings>",
      "3 [settings] -1:-1 2:2 / " },
    { "CDATA ends the content and is dropped up to a slash", "~<settings><title>a<![CDATA[b]]></title></settings>",
      "0 [] -1:-1 2:51 / <settings;title=a;>settings;" },
    { "a slash in CDATA is taken for the end tag's", "~<settings><title>a<![CDATA[b/c]]></title></settings>",
      "1 [title] -1:-1 2:30 /settings/title <settings;title=a;" },
    { "processing instruction is an unknown element that nothing ends", "~<settings><?go?></settings>",
      "1 [?go?] -1:-1 2:19 /settings/?go? <settings;??go?;" },
    { "child of a content element is no child", "~<settings><title>a<b>c</b></title></settings>",
      "1 [title] -1:-1 2:25 /settings/title <settings;title=a;" },
    { "end tag before any element", "~</settings>", "1 [<] -1:-1 2:1 / " },
    { "end tag of another element", "~<settings><printer></settings>",
      "1 [printer] -1:-1 2:22 /settings/printer <settings;<printer;" },
    { "end tag of another element below an unknown one", "~<settings><x><y></x></settings>",
      "1 [y] -1:-1 2:19 /settings/x/y <settings;?x;?y;" },
    { "end tag in other case", "~<settings></Settings>", "1 [settings] -1:-1 2:13 /settings <settings;" },
    { "missing element name", "~<settings><></settings>", "9 [XML-Knoten-Bezeichner] -1:-1 2:12 /settings <settings;" },
    { "missing element name in an empty tag", "~<settings></></settings>",
      "9 [XML-Knoten-Bezeichner] -1:-1 2:13 /settings <settings;" },
    { "missing element name in an end tag", "~<settings></>",
      "9 [XML-Knoten-Bezeichner] -1:-1 2:13 /settings <settings;" },
    { "missing attribute name", "~<settings =\"1\"></settings>", "10 [XML-Attribut-Name] -1:-1 2:11 /settings " },
    { "hexadecimal code", "~<settings><title>a&#x41;</title></settings>",
      "8 [] -1:-1 2:19 /settings/title <settings;" },
    { "hexadecimal code in a value", "~<settings><printer name='&#x41;'/></settings>",
      "8 [] -1:-1 2:26 /settings/printer <settings;" },
    { "unknown code", "~<settings><title>a&foo;</title></settings>",
      "11 [G\374ltigen XML-Code] -1:-1 2:23 /settings/title <settings;" },
    { "code names have a case", "~<settings><title>&AMP;</title></settings>",
      "11 [G\374ltigen XML-Code] -1:-1 2:22 /settings/title <settings;" },
    { "empty code", "~<settings><title>&;</title></settings>",
      "11 [G\374ltigen XML-Code] -1:-1 2:19 /settings/title <settings;" },
    { "code 0", "~<settings><title>&#0;</title></settings>",
      "11 [XML-Code der Form &Zahl; mit 0 < Zahl < 256] -1:-1 2:21 /settings/title <settings;" },
    { "code 255", "~<settings><title>&#0255;</title></settings>", "0 [] -1:-1 2:44 / <settings;title=\377;>settings;" },
    { "code 256", "~<settings><title>&#256;</title></settings>",
      "11 [XML-Code der Form &Zahl; mit 0 < Zahl < 256] -1:-1 2:23 /settings/title <settings;" },
    { "code far out of range", "~<settings><title>&#99999999999999999999;</title></settings>",
      "11 [XML-Code der Form &Zahl; mit 0 < Zahl < 256] -1:-1 2:40 /settings/title <settings;" },
    { "code with a sign", "~<settings><title>&#+65;</title></settings>",
      "11 [XML-Code der Form &Zahl; mit 0 < Zahl < 256] -1:-1 2:23 /settings/title <settings;" },
    { "empty numeric code", "~<settings><title>&#;</title></settings>",
      "11 [XML-Code der Form &Zahl; mit 0 < Zahl < 256] -1:-1 2:20 /settings/title <settings;" },
    { "code in upper case X", "~<settings><title>&#X41;</title></settings>",
      "11 [XML-Code der Form &Zahl; mit 0 < Zahl < 256] -1:-1 2:23 /settings/title <settings;" },
    { "attribute handler refuses", "~<settings>\n  <printer name='refuse'/></settings>",
      "5 [] -1:-1 3:24 /settings/printer <settings;@name=refuse;" },
    { "unknown-attribute handler refuses", "~<settings x='refuse'/>", "5 [] -1:-1 2:20 /settings ?@x=refuse;" },
    { "unknown-element handler refuses", "~<settings><refuse/></settings>",
      "5 [] -1:-1 2:12 /settings/refuse <settings;?refuse;" },
    { "content handler refuses", "~<settings><title>refuse</title></settings>",
      "5 [] -1:-1 2:24 /settings/title <settings;title=refuse;" },
    { "content handler refuses an empty tag after its attribute", "~<settings><title unit='refuse'/></settings>",
      "5 [] -1:-1 2:30 /settings/title <settings;@unit=refuse;" },
    { "line and column count bytes", "~<settings>\n\t\344\344<title>&foo;</title></settings>",
      "11 [G\374ltigen XML-Code] -1:-1 3:15 /settings/title <settings;" },
};

std::string Expand(char const* document)
{
    return *document == '~' ? "<?xml version=\"1.0\"?>\n" + std::string(document + 1) : document;
}

/// Hands out a text in two reads, so that what is in memory ends where the test wants.
class SplitBuffer : public std::streambuf
{
public:
    SplitBuffer(std::string const& text, std::size_t split) : m_text(text), m_split(split) {}

protected:
    std::streamsize xsgetn(char* target, std::streamsize size) override
    {
        std::size_t const end = m_at < m_split ? m_split : m_text.size();
        std::size_t const count = std::min(end - m_at, static_cast<std::size_t>(size));
        std::memcpy(target, m_text.data() + m_at, count);
        m_at += count;
        return static_cast<std::streamsize>(count);
    }

private:
    std::string const& m_text;
    std::size_t m_split;
    std::size_t m_at = 0;
};

// What is cut short may read as something else: a name as another name, the start of a comment as the start of a tag.
// That goes for the last event of the trace and for the errors of names.

std::string WithoutLastEvent(std::string const& trace)
{
    return trace.size() < 2 ? "" : trace.substr(0, trace.find_last_of(';', trace.size() - 2) + 1);
}

bool IsErrorOfACut(StreamerError::ResultCode code)
{
    return code == StreamerError::UnexpectedEndOfStream || code == StreamerError::InvalidRootElement ||
           code == StreamerError::InvalidSyntax;
}

} // namespace

TEST(XMLStreamer, DocumentsAndTheirOutcome)
{
    for (Row const& row : c_rows)
    {
        SCOPED_TRACE(row.why);
        TracingReader reader;
        EXPECT_EQ(row.outcome, reader.Describe(reader.Read(Expand(row.document))));
    }
}

// What is plain and in memory takes the short way, what straddles two reads the state table: nobody may see which.
TEST(XMLStreamer, OutcomeDoesNotDependOnWhereReadsEnd)
{
    for (Row const& row : c_rows)
    {
        SCOPED_TRACE(row.why);
        std::string const document = Expand(row.document);
        TracingReader reader;
        for (std::size_t split = 1; split < document.size(); ++split)
        {
            SplitBuffer buffer(document, split);
            std::istream stream(&buffer);
            reader.trace.clear();
            ASSERT_EQ(row.outcome, reader.Describe(reader.streamer.ProcessSource(stream))) << "split at " << split;
        }
    }
}

TEST(XMLStreamer, CutDocumentEndsTooEarlyOrFailsAsTheWholeOne)
{
    for (Row const& row : c_rows)
    {
        SCOPED_TRACE(row.why);
        std::string const document = Expand(row.document);
        TracingReader whole;
        bool const isRead = whole.Read(document);
        TracingReader cut;
        for (std::size_t size = 0; size < document.size(); ++size)
        {
            bool const isCutRead = cut.Read(document.substr(0, size));
            auto const code = cut.streamer.GetError().GetErrorCode();
            ASSERT_TRUE(whole.trace.starts_with(WithoutLastEvent(cut.trace))) << "cut at " << size << ": " << cut.trace;
            ASSERT_TRUE(isCutRead ? isRead : IsErrorOfACut(code) || code == whole.streamer.GetError().GetErrorCode())
                << "cut at " << size << " code " << code;
        }
    }
}

TEST(XMLStreamer, RandomMarkupReadsTheSameInWholeAndInPieces)
{
    char const* const pieces[] = { "<",        "</",         ">",
                                   "/>",       "=",          "\"",
                                   "'",        " ",          "\n",
                                   "&amp;",    "&#65;",      "&x;",
                                   "<!--",     "-->",        "/",
                                   "a",        "title",      "port",
                                   "name",     "<port",      "</port>",
                                   "<title>",  "</title>",   " name=\"v\"",
                                   "<printer", "</printer>", "<printer name=\"a&lt;\">",
                                   "<x>",      "</x>",       "</settings>" };
    std::mt19937 random(20240501);
    TracingReader reader;
    for (int i = 0; i < 3000; ++i)
    {
        std::string document = Expand("~<settings>");
        for (unsigned int count = static_cast<unsigned int>(random() % 16); count > 0; --count)
            document += pieces[random() % std::size(pieces)];
        std::string const whole = reader.Describe(reader.Read(document));
        for (std::size_t const split : { document.size() - random() % (document.size() - 31), document.size() / 2 })
        {
            SplitBuffer buffer(document, split);
            std::istream stream(&buffer);
            reader.trace.clear();
            ASSERT_EQ(whole, reader.Describe(reader.streamer.ProcessSource(stream))) << document << "|" << split;
        }
    }
}
