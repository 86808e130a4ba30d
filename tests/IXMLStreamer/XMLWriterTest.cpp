#include <IXMLStreamer/XMLWriter.h>

#include <streambuf>

using namespace Vek::Framework::IXMLStreamer::Native;

namespace
{

using Emitter = XMLWriter::AttributeEmitter;
using Step = std::function<bool(XMLWriter&)>;

auto const None = [](Emitter const&) {};
auto const Begin = [](XMLWriter& writer) { return writer.WriteBeginStructure("a", None); };
auto const End = [](XMLWriter& writer) { return writer.WriteEndStructure(); };
auto const Content = [](XMLWriter& writer)
{ return writer.WriteContentValue("b", 1, None) && writer.WriteContent("b", None); };
auto const Comment = [](XMLWriter& writer) { return writer.WriteComment("c"); };
auto const Finish = [](XMLWriter& writer) { return writer.FinishWriting(); };

} // namespace

TEST(XMLWriter, OperationsInEveryState)
{
    constexpr int c_done = -1;   // true, no error
    constexpr int c_failed = -2; // false, without an error of its own
    // Outcomes in these states: failed, never started, finished, started, open, closed.
    // c_done, c_failed or the code of the error
    Rows<char const*, Step, std::array<int, 6>> const rows = {
        { "begin", Begin, { c_failed, 3, 3, c_done, c_done, 2 } },
        { "end", End, { c_failed, 3, 3, 1, c_done, 6 } },
        { "content", Content, { c_failed, 3, 3, 4, c_done, 2 } },
        { "comment", Comment, { c_failed, 3, c_done, c_done, c_done, c_done } },
        { "finish", Finish, { c_failed, 3, 3, 1, 5, c_done } },
    };
    std::ostringstream stream;
    Step const start = [&stream](XMLWriter& writer) { return writer.StartWriting(stream, false); };
    Step const failing = [](XMLWriter& writer) { return !End(writer); };
    std::vector<Step> const preparations[] = {
        { start, failing }, {}, { start, Begin, End, Finish }, { start }, { start, Begin }, { start, Begin, End }
    };
    for (auto const& [name, operation, outcomes] : rows)
        for (std::size_t state = 0; state < 6; ++state)
        {
            SCOPED_TRACE(name + std::to_string(state));
            stream.str("");
            XMLWriter writer;
            for (Step const& step : preparations[state])
                EXPECT_TRUE(step(writer));

            std::string const before = stream.str();
            int const expected = outcomes[state];
            int const code = expected >= 0 ? expected : state == 0 ? 1 : 0;
            EXPECT_EQ(expected == c_done, operation(writer));
            WriterError const& error = writer.GetLastError();
            EXPECT_EQ(code, static_cast<int>(error.GetErrorCode()));
            EXPECT_TRUE(error.GetLine() == -1 && error.GetColumn() == -1);
            if (code == 0)
                continue;
            EXPECT_FALSE(Comment(writer)); // failed for good
            EXPECT_EQ(before, stream.str());
            EXPECT_TRUE(writer.StartWriting(stream, true) && Begin(writer) && End(writer) && Finish(writer));
            EXPECT_EQ(before + "<?xml version=\"1.0\"?>\n<a>\n</a>\n", stream.str());
        }
}

TEST(XMLWriter, Layout)
{
    std::ostringstream stream;
    XMLWriter writer;
    EXPECT_TRUE(writer.StartWriting(stream, true));
    EXPECT_TRUE(writer.WriteComment("1 < 2 -->") && writer.WriteComment(""));
    EXPECT_TRUE(writer.WriteBeginStructure("A", [](Emitter emit) { emit("a", "a\"b"), emit("<", ""); }));
    EXPECT_TRUE(writer.WriteContentValue("B", "x<y\r\n", None));
    EXPECT_TRUE(writer.WriteContentValue("C&", "", [](Emitter const& emit) { emit("a", "1"); }));
    EXPECT_TRUE(writer.WriteBeginStructure("longer", None) && writer.WriteContent("", None));
    EXPECT_TRUE(writer.WriteContentValue("null", static_cast<char const*>(nullptr), None));
    EXPECT_TRUE(writer.WriteComment("deep") && End(writer) && End(writer));
    EXPECT_TRUE(writer.FinishWriting() && writer.WriteComment("behind"));
    EXPECT_EQ("<?xml version=\"1.0\"?>\n"
              "<!--1 &lt; 2 --&gt;-->\n"
              "<A a=\"a&quot;b\" <=\"\">\n"
              "\t<B>x&lt;y&#13;&#10;</B>\n"
              "\t<C& a=\"1\"/>\n"
              "\t<longer>\n"
              "\t\t</>\n"
              "\t\t<null/>\n"
              "\t\t<!--deep-->\n"
              "\t</longer>\n"
              "</A>\n"
              "<!--behind-->\n",
              stream.str());
}

TEST(XMLWriter, RefusedAttributeOrNameFailsTheWriter)
{
    auto const emptyName = [](Emitter const& emit) { emit("a", "1"), emit("", "2"), emit("c", "3"); };
    Rows<Step, char const*> const rows = {
        { [&](XMLWriter& w) { return w.WriteBeginStructure("b", emptyName); }, "\t<b a=\"1\" c=\"3\"" },
        { [&](XMLWriter& w) { return w.WriteContentValue("b", 5, emptyName); }, "\t<b a=\"1\" c=\"3\"" },
        { [&](XMLWriter& w) { return w.WriteContent("b", emptyName); }, "\t<b a=\"1\" c=\"3\"" },
        { [&](XMLWriter& w) { return w.WriteBeginStructure("", emptyName); }, "" },
    };
    for (auto const& [operation, written] : rows)
    {
        std::ostringstream stream;
        XMLWriter writer;
        EXPECT_TRUE(writer.StartWriting(stream, false) && Begin(writer));
        EXPECT_FALSE(operation(writer));
        EXPECT_EQ(WriterError::EmptyName, writer.GetLastError().GetErrorCode()) << written;
        EXPECT_STREQ("", writer.GetLastError().GetDescription());
        EXPECT_FALSE(End(writer));
        EXPECT_EQ(std::string("<a>\n") + written, stream.str());
    }
}

TEST(XMLWriter, OperationInsideAnotherFailsTheWriter)
{
    std::ostringstream stream;
    XMLWriter writer;
    Emitter kept;
    auto const restart = [&stream](XMLWriter& w) { return w.StartWriting(stream, true); };
    for (Step const& operation : { Step(Begin), Step(End), Step(Content), Step(Comment), Step(Finish), Step(restart) })
    {
        stream.str("");
        EXPECT_TRUE(writer.StartWriting(stream, false) && Begin(writer));
        EXPECT_FALSE(writer.WriteContent("b", [&](Emitter const&) { EXPECT_FALSE(operation(writer)); }));
        EXPECT_EQ(WriterError::NestedOperation, writer.GetLastError().GetErrorCode());
        EXPECT_EQ("<a>\n\t<b", stream.str());
    }
    EXPECT_TRUE(writer.StartWriting(stream, false) && Begin(writer));
    EXPECT_FALSE(writer.WriteContent("b", [&](Emitter const&) { writer = XMLWriter(); }));

    EXPECT_TRUE(writer.StartWriting(stream, false));
    EXPECT_TRUE(writer.WriteBeginStructure("a", [&](Emitter const& emit) { kept = emit; }));
    EXPECT_FALSE(writer.WriteContent("b", [&](Emitter const&) { kept("of another element", ""); }));
    EXPECT_EQ(WriterError::NestedOperation, writer.GetLastError().GetErrorCode());
    EXPECT_TRUE(writer.StartWriting(stream, false));
    kept("late", "");
    EXPECT_EQ(WriterError::NestedOperation, writer.GetLastError().GetErrorCode());
}

TEST(XMLWriter, ExceptionOfAnAttributeWriterLeavesTheWriterAsItWas)
{
    std::ostringstream stream;
    XMLWriter writer;
    auto const fail = [](Emitter const& emit) { emit("a", "1"), throw std::runtime_error("x"); };
    EXPECT_TRUE(writer.StartWriting(stream, false));
    EXPECT_THROW(writer.WriteBeginStructure("a", fail), std::runtime_error);
    EXPECT_TRUE(Begin(writer));
    EXPECT_THROW(writer.WriteContentValue("b", "x", fail), std::runtime_error);
    EXPECT_THROW(writer.WriteContent("b", XMLWriter::AttributeWriter()), std::bad_function_call);
    EXPECT_TRUE(Content(writer) && End(writer) && Finish(writer));
    EXPECT_EQ("<a>\n\t<b>1</b>\n\t<b/>\n</a>\n", stream.str());
}

TEST(XMLWriter, AttributeWriterMayChangeTheValueButNotTheName)
{
    std::ostringstream stream;
    XMLWriter writer;
    std::string name = "first";
    std::string value(100, 'x');
    auto const change = [&](Emitter const&) { name = value = "a much longer one than that"; };
    EXPECT_TRUE(writer.StartWriting(stream, false) && writer.WriteBeginStructure(name, change));
    name = "second";
    value = "";
    EXPECT_TRUE(writer.WriteContentValue(name, value, change) && End(writer));
    EXPECT_EQ("<first>\n\t<second>a much longer one than that</second>\n</first>\n", stream.str());
}

TEST(XMLWriter, FailedStreamIsTheStreamsToReport)
{
    std::ostringstream stream;
    XMLWriter writer;
    stream.setstate(std::ios::failbit);
    EXPECT_FALSE(writer.StartWriting(stream, true));
    EXPECT_EQ(WriterError::Ok, writer.GetLastError().GetErrorCode());
    EXPECT_FALSE(Begin(writer));

    stream.clear();
    EXPECT_TRUE(writer.StartWriting(stream, false));
    stream.setstate(std::ios::badbit);
    EXPECT_TRUE(Begin(writer) && Content(writer) && End(writer) && Finish(writer));
    EXPECT_EQ("", stream.str());

    struct : std::streambuf
    {
    } full; // takes nothing
    std::ostream throwing(&full);
    throwing.exceptions(std::ios::badbit);
    EXPECT_TRUE(writer.StartWriting(throwing, false));
    EXPECT_THROW(Begin(writer), std::ios::failure);
    throwing.exceptions(std::ios::goodbit);
    EXPECT_TRUE(End(writer) && Finish(writer)); // the element counts as begun
}

TEST(XMLWriter, EveryDepthIsIndentedByItsTabs)
{
    std::ostringstream stream;
    XMLWriter writer;
    EXPECT_TRUE(writer.StartWriting(stream, false));
    std::string begun;
    std::string ended;
    for (std::size_t depth = 0; depth < 40; ++depth)
    {
        EXPECT_TRUE(Begin(writer));
        begun += std::string(depth, '\t') + "<a>\n";
        ended = std::string(depth, '\t') + "</a>\n" + ended;
    }
    while (End(writer))
    {
    }
    EXPECT_EQ(begun + ended, stream.str());
}

TEST(XMLWriter, CopyGoesOnFromTheSamePlace)
{
    std::ostringstream stream;
    XMLWriter writer;
    EXPECT_TRUE(writer.StartWriting(stream, false) && Begin(writer));
    XMLWriter copy(writer);
    EXPECT_TRUE(Begin(writer) && End(copy) && Finish(copy));
    copy = writer;
    EXPECT_TRUE(End(copy) && End(copy) && Finish(copy));
    EXPECT_EQ("<a>\n\t<a>\n</a>\n\t</a>\n</a>\n", stream.str());
}
