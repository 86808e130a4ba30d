#include "XMLStreamerFixture.h"

using namespace XMLStreamerTests;

namespace
{

// clang-format off
OutcomeRow const c_rows[] = {
    { "nested structure with attribute", "^\n\t<printer name=\"x\">\n\t\t<port>USB</port>\n\t</printer>\n</settings>\n", "ok 7:1 / <settings;@name=x;<printer;port=USB;>printer;>settings;" },
    { "single quotes hold double ones", "^<printer name='a\"b'/>$", "ok 2:43 / <settings;@name=a\"b;<printer;>printer;>settings;" },
    { "blanks wherever tokens are apart", "~< settings >< printer name = \"x\" / >< / settings >", "6 [] 2:51 2:51 /settings/printer <settings;@name=x;" },
    { "blanks in tags that skip them", "~< settings >< printer  name\t=\n\"x\" />\r\n</ settings >", "ok 4:14 / <settings;@name=x;<printer;>printer;>settings;" },
    { "text between elements is dropped", "^x<printer/>y</settings>z", "ok 2:35 / <settings;<printer;>printer;>settings;" },
    { "comments at every level", "<!--0--><?xml version='1.0'?><!--1--><settings><!--2--><x><!--3--></x></settings><!--4-->", "ok 1:90 / <settings;?x;>settings;" },
    { "unknown attribute", "~<settings lang='de'/>", "6 [] 2:22 2:22 / ?@lang=de;<settings;>settings;" },
    { "unknown element and all below it", "^<x a='1'>t<title b='2'>u</title><y/></x><title>v</title>$", "ok 2:78 / <settings;?x;?@a=1;?title;?@b=2;?y;title=v;>settings;" },
    { "text in an unknown element may hold codes", "^<x>&nope; &#x41;</x>$", "ok 2:42 / <settings;?x;>settings;" },
    { "codes in values and content", "^<printer name='&lt;&amp;&#65;&auml;'><port>&quot;&#10;&euro;</port></printer>$", "ok 2:99 / <settings;@name=<&A\344;<printer;port=\"\n\200;>printer;>settings;" },
    { "attribute without value is replaced by the next", "^<printer name port='1'/>$", "ok 2:46 / <settings;@name=1;<printer;>printer;>settings;" },
    { "what looks like a code behind a value", "^<printer name=\"a\"lt; port='1'/>$", "ok 2:53 / <settings;@name=a;?@lt;=1;<printer;>printer;>settings;" },
    { "declaration with more in it", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><settings></settings>", "ok 1:65 / <settings;>settings;" },
    { "text before the declaration is dropped", "x<?xml version='1.0'?><settings></settings>", "ok 1:44 / <settings;>settings;" },
    { "text after the root is dropped", "^</settings> trailing <x>", "ok 2:35 / <settings;>settings;" },
    { "an empty root tag does not complete the document", "~<settings/>", "6 [] 2:12 2:12 / <settings;>settings;" },
    { "after an empty root tag another may follow", "~<settings/><settings></settings>", "ok 2:33 / <settings;>settings;<settings;>settings;" },
    { "no declaration", "<settings></settings>", "6 [] 1:22 1:22 / " },
    { "other version", "<?xml version=\"1.1\"?><settings></settings>", "6 [] 1:43 1:43 / " },
    { "declaration without end", "<?xml version='1.0'><settings></settings>", "6 [] 1:42 1:42 / " },
    { "end inside the root", "^<title>a</title>", "6 [] 2:27 2:27 /settings <settings;title=a;" },
    { "end inside a value", "^<printer name='x", "6 [] 2:27 2:27 /settings/printer <settings;" },
    { "other root", "~<options></options>", "3 [settings] -1:-1 2:2 / " },
    { "DOCTYPE is no element of this dialect", "~<!DOCTYPE settings><settings></settings>", "3 [settings] -1:-1 2:2 / " },
    { "CDATA ends the content and is dropped up to a slash", "^<title>a<![CDATA[b]]></title>$", "ok 2:51 / <settings;title=a;>settings;" },
    { "a slash in CDATA is taken for the end tag's", "^<title>a<![CDATA[b/c]]></title>$", "1 [title] -1:-1 2:30 /settings/title <settings;title=a;" },
    { "processing instruction is an unknown element that nothing ends", "^<?go?>$", "1 [?go?] -1:-1 2:19 /settings/?go? <settings;??go?;" },
    { "child of a content element is no child", "^<title>a<b>c</b></title>$", "1 [title] -1:-1 2:25 /settings/title <settings;title=a;" },
    { "end tag before any element", "~</settings>", "1 [<] -1:-1 2:1 / " },
    { "end tag of another element", "^<printer>$", "1 [printer] -1:-1 2:22 /settings/printer <settings;<printer;" },
    { "end tag of another element below an unknown one", "^<x><y></x>$", "1 [y] -1:-1 2:19 /settings/x/y <settings;?x;?y;" },
    { "missing element name", "^<>$", "9 [XML-Knoten-Bezeichner] -1:-1 2:12 /settings <settings;" },
    { "missing element name in an end tag", "^</>", "9 [XML-Knoten-Bezeichner] -1:-1 2:13 /settings <settings;" },
    { "missing attribute name", "~<settings =\"1\"></settings>", "10 [XML-Attribut-Name] -1:-1 2:11 /settings " },
    { "hexadecimal code", "^<title>a&#x41;</title>$", "8 [XML-Code der Form &Zahl; mit 0 < Zahl < 256] -1:-1 2:19 /settings/title <settings;" },
    { "unknown code", "^<title>a&foo;</title>$", "11 [G\374ltigen XML-Code] -1:-1 2:23 /settings/title <settings;" },
    { "code 0", "^<title>&#0;</title>$", "11 [XML-Code der Form &Zahl; mit 0 < Zahl < 256] -1:-1 2:21 /settings/title <settings;" },
    { "code 255", "^<title>&#0255;</title>$", "ok 2:44 / <settings;title=\377;>settings;" },
    { "code 256", "^<title>&#256;</title>$", "11 [XML-Code der Form &Zahl; mit 0 < Zahl < 256] -1:-1 2:23 /settings/title <settings;" },
    { "empty numeric code", "^<title>&#;</title>$", "11 [XML-Code der Form &Zahl; mit 0 < Zahl < 256] -1:-1 2:20 /settings/title <settings;" },
    { "code in upper case X", "^<title>&#X41;</title>$", "11 [XML-Code der Form &Zahl; mit 0 < Zahl < 256] -1:-1 2:23 /settings/title <settings;" },
    { "attribute handler refuses", "^\n  <printer name='refuse'/>$", "5 [] -1:-1 3:24 /settings/printer <settings;@name=refuse;" },
    { "unknown-element handler refuses", "^<refuse/>$", "5 [] -1:-1 2:12 /settings/refuse <settings;?refuse;" },
    { "content handler refuses", "^<title>refuse</title>$", "5 [] -1:-1 2:24 /settings/title <settings;title=refuse;" },
    { "content handler refuses an empty tag after its attribute", "^<title unit='refuse'/>$", "5 [] -1:-1 2:30 /settings/title <settings;@unit=refuse;" },
    { "line and column count bytes", "^\n\t\344\344<title>&foo;</title>$", "11 [G\374ltigen XML-Code] -1:-1 3:15 /settings/title <settings;" },
};
// clang-format on

} // namespace

// What is plain and in memory takes the short way, what straddles two reads the state table: nobody may see which.
TEST(XMLStreamer, OutcomeOfDocumentsWhereverReadsEnd)
{
    ExpectOutcomes(c_rows, XMLStreamer::Lenient);
}

TEST(XMLStreamer, RandomMarkupReadsTheSameInWholeAndInPiecesAndStrictlyIfAtAll)
{
    // clang-format off
    char const* const pieces[] = {
        "<", "</", ">", "/>", "=", "\"", "'", " ", "\n", "&amp;", "&#65;", "&x;", "<!--", "-->", "/", "a", "title", "port",
        "name", "<port", "</port>", "<title>", "</title>", " name=\"v\"", "<printer", "</printer>", "]]>", "\1", "<?",
        "<printer name=\"a&lt;\">", "<x>", "</x>", "</settings>", " a='1'", "<title>a",
    };
    // clang-format on
    std::mt19937 random(20240501);
    TracingReader lenient;
    TracingReader strict(XMLStreamer::Strict);
    int readStrictly = 0;
    for (int i = 0; i < 3000; ++i)
    {
        std::string document = Expand("^");
        for (unsigned int count = static_cast<unsigned int>(random() % 16); count > 0; --count)
            document += pieces[random() % std::size(pieces)];
        document += i % 2 == 0 ? "</settings>" : "";
        std::string const whole = lenient.Describe(lenient.Read(document));
        bool const isRead = strict.Read(document);
        std::string const wholeStrictly = strict.Describe(isRead);
        ASSERT_TRUE(!isRead || whole == wholeStrictly) << document << "|" << whole << "|" << wholeStrictly;
        TracingReader fresh(isRead ? XMLStreamer::Strict : XMLStreamer::Lenient); // remembers nothing
        ASSERT_EQ(whole, fresh.Describe(fresh.Read(document))) << document;
        readStrictly += isRead ? 1 : 0;
        for (std::size_t const split : { document.size() - random() % (document.size() - 31), document.size() / 2 })
        {
            ASSERT_EQ(whole, lenient.ReadInTwo(document, split)) << document << "|" << split;
            ASSERT_EQ(wholeStrictly, strict.ReadInTwo(document, split)) << document << "|" << split;
        }
    }
    EXPECT_GT(readStrictly, 100);
}
