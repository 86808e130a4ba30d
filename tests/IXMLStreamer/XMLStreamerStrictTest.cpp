#include "XMLStreamerFixture.h"

using namespace XMLStreamerTests;

namespace
{

constexpr auto c_strict = XMLStreamer::Strict;

// clang-format off
OutcomeRow const c_rows[] = {
    { "all that is allowed", "<?xml version='1.0' encoding = \"Windows-1252\" standalone='yes' ?>\n<!-- - -->\n"
      "<settings\t>\n<printer name='a\"b&gt;>\tc'\r\nx.-1 = \"'\"  ><port>a > b]] ]&#93;> &auml;\n<!--c--></port \n></printer>"
      "<\374 _:9=''/></settings >\n<!----> ", "ok 8:9 / <settings;@name=a\"b>>\tc;?@x.-1=';<printer;port=a > b]] ]]> \344\n;>printer;?\374;?@_:9=;>settings;" },
    { "an empty root", "~<settings/>", "ok 2:12 / <settings;>settings;" },
    { "a second root behind it", "~<settings/><settings/>", "12 [Ende vom XML-Stream oder <!--] 2:12 2:12 / <settings;>settings;" },
    { "blanks before the declaration", " <?xml version='1.0'?><settings/>", "12 [<?xml] 1:1 1:1 / " },
    { "a comment before it", "<!--0--><?xml version='1.0'?><settings/>", "12 [<?xml] 1:1 1:1 / " },
    { "a byte order mark", "\357\273\277<?xml version='1.0'?><settings/>", "12 [<?xml] 1:1 1:1 / " },
    { "no declaration", "<settings></settings>", "12 [<?xml] 1:1 1:1 / " },
    { "another target", "<?xmlx version='1.0'?><settings/>", "12 [<?xml] 1:1 1:1 / " },
    { "another version", "<?xml version='1.1'?><settings/>", "12 [version=\"1.0\" oder version='1.0'] 1:7 1:7 / " },
    { "an encoding before the version", "<?xml encoding='ASCII' version='1.0'?><settings/>", "12 [version=\"1.0\" oder version='1.0'] 1:7 1:7 / " },
    { "no blank behind the version", "<?xml version='1.0'encoding='ASCII'?><settings/>", "12 [?>] 1:36 1:36 / " },
    { "a word in the declaration", "<?xml version='1.0' x?><settings/>", "12 [?>] 1:22 1:22 / " },
    { "standing alone or not", "<?xml version='1.0' standalone='maybe'?><settings/>", "12 [?>] 1:39 1:39 / " },
    { "an encoding behind it", "<?xml version='1.0' standalone='no' encoding='ASCII'?><settings/>", "12 [?>] 1:53 1:53 / " },
    { "no blank between the two", "<?xml version='1.0' encoding='ASCII'standalone='no'?><settings/>", "12 [?>] 1:52 1:52 / " },
    { "an odd name of an encoding", "<?xml version='1.0' encoding='8859'?><settings/>", "12 [?>] 1:36 1:36 / " },
    { "an encoding without quotes", "<?xml version='1.0' encoding=ASCII?><settings/>", "12 [?>] 1:35 1:35 / " },
    { "an encoding without its second quote", "<?xml version='1.0' encoding='ASCII?><settings/>", "12 [?>] 1:36 1:36 / " },
    { "an encoding with other bytes", "<?xml version='1.0' encoding='UTF-8'?><settings/>", "12 [windows-1252, ISO-8859-1 oder US-ASCII] 1:37 1:37 / " },
    { "a document type", "~<!DOCTYPE settings><settings/>", "12 [] 2:1 2:1 / " },
    { "a document type behind the root", "~<settings/>\n<!DOCTYPE settings>", "12 [Ende vom XML-Stream oder <!--] 3:1 3:1 / <settings;>settings;" },
    { "a processing instruction", "^<?go?>$", "12 [] 2:11 2:11 /settings <settings;" },
    { "CDATA between elements", "^<![CDATA[a]]>$", "12 [] 2:11 2:11 /settings <settings;" },
    { "CDATA in content", "^<title>a<![CDATA[b]]></title>$", "12 [] 2:19 2:19 /settings/title <settings;" },
    { "a bare < in content", "^<title>a < b</title>$", "12 [] 2:20 2:20 /settings/title <settings;" },
    { "a child in content", "^<title>a<b/></title>$", "12 [] 2:19 2:19 /settings/title <settings;" },
    { "the end of CDATA in content", "^<title>a]]]></title>$", "12 [] 2:20 2:20 /settings/title <settings;" },
    { "a control character in content", "^<title>a\x1f</title>$", "12 [] 2:19 2:19 /settings/title <settings;" },
    { "the code of one", "^<title>&#9;&#10;&#31;</title>$", "12 [] 2:31 2:31 /settings/title <settings;" },
    { "text between elements", "^<printer/>\n x<printer/>$", "12 [< oder <!--] 3:2 3:2 /settings <settings;<printer;>printer;" },
    { "text before the root", "~x<settings/>", "12 [< oder <!--] 2:1 2:1 / " },
    { "text behind the root", "^</settings>\nx", "12 [Ende vom XML-Stream oder <!--] 3:1 3:1 / <settings;>settings;" },
    { "text in an element without description", "^<x>y</x>$", "12 [< oder <!--] 2:14 2:14 /settings/x <settings;?x;" },
    { "a name that begins with a digit", "^<1/>$", "12 [XML-Knoten-Bezeichner] 2:12 2:12 /settings <settings;" },
    { "a name with a sign", "^<a\327b/>$", "12 [XML-Knoten-Bezeichner] 2:12 2:12 /settings <settings;" },
    { "a blank before a name", "^< title/>$", "12 [] 2:12 2:12 /settings <settings;" },
    { "a slash in a tag", "^<title / >$", "12 [XML-Attribut-Name] 2:18 2:18 /settings/title <settings;" },
    { "a blank before the name of an end tag", "^<title></ title>$", "12 [] 2:20 2:20 /settings/title <settings;title=;" },
    { "a blank before the slash of one", "^<title>< /title>$", "12 [] 2:18 2:18 /settings/title <settings;" },
    { "junk in one", "^<title></title x>$", "12 [>] 2:26 2:26 /settings/title <settings;title=;" },
    { "an attribute without value", "^<printer name port='1'/>$", "12 [=] 2:25 2:25 /settings/printer <settings;" },
    { "and nothing behind it", "^<printer name></printer>$", "12 [=] 2:24 2:24 /settings/printer <settings;" },
    { "a value without quotes", "^<printer a=1 name='2'/>$", "12 [\" oder '] 2:22 2:22 /settings/printer <settings;" },
    { "no blank between attributes", "^<printer a=\"1\"name=\"2\"/>$", "12 [>] 2:25 2:25 /settings/printer <settings;?@a=1;" },
    { "an attribute twice", "^<printer name=\"1\" a='' name=\"2\"/>$", "12 [XML-Attribut-Name] 2:34 2:34 /settings/printer <settings;@name=1;?@a=;" },
    { "a name of an attribute that is none", "^<printer -a='1'/>$", "12 [XML-Attribut-Name] 2:20 2:20 /settings/printer <settings;" },
    { "a < in a value", "^<printer name=\"a<b\"/>$", "12 [] 2:27 2:27 /settings/printer <settings;" },
    { "a control character in a value", "^<printer name='a\n\1'/>$", "12 [] 3:1 3:1 /settings/printer <settings;" },
    { "two hyphens in a comment", "^<!-- a-- -->$", "12 [] 2:17 2:17 /settings <settings;" },
    { "three at its end", "^<!-- a--->$", "12 [] 2:17 2:17 /settings <settings;" },
    { "a control character in a comment", "^<!-- \2 -->$", "12 [] 2:16 2:16 /settings <settings;" },
};
// clang-format on

} // namespace

TEST(XMLStreamerStrict, OutcomeOfDocumentsWhereverReadsEnd)
{
    ExpectOutcomes(c_rows, c_strict);
}

TEST(XMLStreamerStrict, EveryByteOfANameAndAText)
{
    std::string const letters = "\203\212\214\216\232\234\236\237"; // of Windows-1252, below its upper half
    TracingReader reader(c_strict);
    TracingReader anyEncoding(XMLStreamer::StrictInAnyEncoding);
    for (int byte = 1; byte < 256; ++byte)
    {
        char const c = static_cast<char>(byte);
        bool const isUpper = byte >= 192 && byte != 215 && byte != 247;
        bool const isHighLetter = isUpper || letters.find(c) != std::string::npos;
        bool const isStart = byte < 128 ? std::isalpha(byte) != 0 || c == '_' || c == ':' : isHighLetter;
        bool const isPart = isStart || (byte < 128 && std::isdigit(byte) != 0) || c == '-' || c == '.' || byte == 183;
        bool const isBlank = c == ' ' || c == '\t' || c == '\n' || c == '\r';
        auto const expect = [&](bool isRead, std::string const& before, std::string const& behind)
        {
            std::string const document = Expand(before + c + behind);
            EXPECT_EQ(isRead, reader.Read(document)) << document;
            EXPECT_EQ(isRead || byte >= 128, anyEncoding.Read(document)) << document;
        };
        expect(isStart, "^<", "/>$");
        expect(isPart || isBlank, "^<x a", "=''/>$");
        expect(isBlank || (byte > 32 && c != '<' && c != '&'), "^<title>", "</title>$");
        expect(isBlank || (byte > 32 && c != '<' && c != '&' && c != '"'), "^<x a=\"", "\"/>$");
    }
}

TEST(XMLStreamerStrict, VeryManyAttributesAndOneOnceMore)
{
    std::string document = Expand("^<x");
    int count = 0;
    for (; count < 100'000; ++count)
        document += (count % 1000 == 0 ? "\n a" : " a") + std::to_string(count) + (count % 7 == 0 ? "=''" : "=\"\"");
    int seen = 0;
    XMLStreamer reader;
    reader.CreateRootStructureElement("settings");
    reader.SetOnUnknownAttribute(0, [&](auto&, auto&) { return ++seen, true; });
    reader.SetSyntax(c_strict);
    EXPECT_TRUE(reader.ProcessSource(document + "/></settings>"));
    EXPECT_EQ(count, seen);
    EXPECT_FALSE(reader.ProcessSource(document + " a7=''/></settings>"));
    EXPECT_EQ(StreamerError::UnsupportedSyntax, reader.GetError().GetErrorCode());
    EXPECT_STREQ("Nicht unterst\374tzte XML-Syntax!", reader.GetError().GetDescription());
}

TEST(XMLStreamerStrict, TheDeclaredEncodingIsToldAndMayBeAny)
{
    // clang-format off
    Rows<char const*, char const*, bool, bool> const rows = {
        { "<?xml version='1.0'?>", "", true, true },
        { "<?xml version='1.0' encoding='ISO-8859-1'?>", "ISO-8859-1", true, true },
        { "<?xml version='1.0' encoding='us-ascii'?>", "us-ascii", true, true },
        { "<?xml version='1.0' encoding = \"UTF-8\" ?>", "UTF-8", false, true },
        { "\357\273\277<?xml version='1.0' encoding='utf-8'?>", "utf-8", false, true },
        { "\357\273\277\357\273\277<?xml version='1.0'?>", "", false, false },
        { "<?xml encoding='cp1252' version='1.0'?>", "cp1252", false, false },
        { "<?xml version='1.0' xencoding='x' encoding encoding='a b?>", "", false, false },
        { "<?xml version='1.0' xencoding='x' encoding encoding='y'?>", "y", false, false },
    };
    // clang-format on
    for (auto const& [declaration, encoding, isStrict, isStrictInAny] : rows)
    {
        SCOPED_TRACE(declaration);
        std::string told;
        XMLStreamer reader;
        reader.CreateRootStructureElement("a").SetOnBegin(0, [&](auto&)
                                                          { return told = reader.GetDeclaredEncoding(), true; });
        std::string const document = std::string(declaration) + "<a></a>";
        EXPECT_TRUE(reader.ProcessSource(document));
        EXPECT_EQ(encoding, told);
        EXPECT_EQ(encoding, reader.GetDeclaredEncoding());
        reader.SetSyntax(c_strict);
        EXPECT_EQ(isStrict, reader.ProcessSource(document));
        reader.SetSyntax(XMLStreamer::StrictInAnyEncoding);
        EXPECT_EQ(isStrictInAny, reader.ProcessSource(document));
    }
}
