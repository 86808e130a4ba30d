#include "XMLStreamerFixture.h"

#include <pthread.h>

using namespace XMLStreamerTests;

namespace
{

char const* const c_declaration = "<?xml version=\"1.0\"?>";

} // namespace

TEST(XMLStreamer, WithoutRootOrReadableStreamNothingIsRead)
{
    XMLStreamer streamer;
    std::istringstream stream(std::string(c_declaration) + "<settings></settings>");
    EXPECT_FALSE(streamer.ProcessSource(stream));
    EXPECT_EQ(StreamerError::RootNotRegistered, streamer.GetError().GetErrorCode());
    EXPECT_EQ(-1, streamer.GetError().GetLine());
    EXPECT_EQ('<', stream.peek());
    TracingReader reader;
    stream.setstate(std::ios_base::failbit);
    EXPECT_FALSE(reader.streamer.ProcessSource(stream));
    EXPECT_EQ(StreamerError::UnexpectedEndOfStream, reader.streamer.GetError().GetErrorCode());
}

TEST(XMLStreamer, HandlersAreChosenByTheVersionThatIsSetWhenTheyAreDue)
{
    XMLStreamer streamer;
    std::string trace;
    XMLStructureElement& root = streamer.CreateRootStructureElement("settings");
    root.RegisterAttribute(0, "format",
                           [&](auto&, auto& value)
                           { return streamer.SetVersion(static_cast<unsigned int>(std::stoul(value))), true; });
    XMLContentElement& title = root.CreateContentElement("title");
    for (unsigned int const version : { 1U, 3U })
        title.SetOnDo(version, [&, version](auto&, auto&) { return trace += std::to_string(version), true; });
    for (char const* const format : { "0", "1", "2", "3", "9" })
    {
        trace += " ";
        std::istringstream stream(std::string(c_declaration) + "<settings format='" + format +
                                  "'><title>a</title></settings>");
        EXPECT_TRUE(streamer.ProcessSource(stream));
    }
    EXPECT_EQ("  1 1 3 3", trace);
}

TEST(XMLStreamer, ExceptionOfAHandlerPassesAndTheNextRunStartsClean)
{
    TracingReader reader;
    bool isThrowing = true;
    reader.streamer.SetOnUnknownElement(
        1, [&](std::string const&) -> bool { return isThrowing ? throw std::runtime_error("handler") : true; });
    std::string const document = std::string(c_declaration) + "<settings><x>\n</x></settings>";
    EXPECT_THROW(reader.Read(document), std::runtime_error);
    EXPECT_EQ("/settings/x", reader.streamer.GetOpenElementPath());
    isThrowing = false;
    EXPECT_EQ("ok 2:16 / <settings;>settings;", reader.Describe(reader.Read(document)));
}

TEST(XMLStreamer, HandlerMayChangeTheDescriptionButNotStartARun)
{
    TracingReader reader;
    XMLStreamer& streamer = reader.streamer;
    int asked = 0;
    auto const handler = [&](std::string const& name)
    {
        ++asked;
        std::istringstream inner("x");
        EXPECT_THROW(streamer.ProcessSource(inner), Vek::InvalidStateException);
        streamer.CreateRootStructureElement(name); // counts from the next run on; what is open stays described
        return true;
    };
    streamer.SetOnUnknownElement(1, handler);
    std::string const document = std::string(c_declaration) + "<settings><other/><title>a</title></settings>";
    EXPECT_EQ("ok 1:67 / <settings;title=a;>settings;", reader.Describe(reader.Read(document)));
    EXPECT_EQ(1, asked);
    EXPECT_EQ("3 [other] -1:-1 1:23 / ", reader.Describe(reader.Read(document)));
}

// What came last at a place is compared first: neither another syntax nor what handlers describe anew may be misled.
TEST(XMLStreamer, WhatIsRememberedOfDocumentsChangesNothing)
{
    XMLStreamer streamer;
    std::string trace;
    XMLStructureElement& root = streamer.CreateRootStructureElement("a");
    XMLContentElement& odd = root.CreateContentElement("1x");
    XMLContentElement& bang = root.CreateContentElement("!--");
    XMLContentElement& item = root.CreateContentElement("item");
    XMLContentElement const plain(item);
    bool isDescribedAgain = true;
    auto const note = [&](std::string const& name, std::string const& value) { return trace += name + value, true; };
    odd.RegisterAttribute(0, "2y", note);
    bang.SetOnDo(0, [&](auto&, auto& content) { return trace += content, true; });
    auto const forget = [&](std::string const& name, std::string const& value)
    {
        item = plain; // this handler and the text of its name are in use
        if (isDescribedAgain)
            item.RegisterAttribute(0, "long-name-of-an-attribute", note);
        return note(name, value);
    };
    auto const read = [&](XMLStreamer::Syntax syntax, std::string const& body)
    {
        trace.clear();
        streamer.SetSyntax(syntax);
        bool const isRead = streamer.ProcessSource("<?xml version='1.0'?><a>" + body + "</a>");
        return (isRead ? "" : "refused ") + trace;
    };
    streamer.SetOnUnknownAttribute(0, [&](auto& name, auto& value)
                                   { return item.RegisterAttribute(0, name, note), note("?" + name, value); });
    for (int i = 0; i < 2; ++i, isDescribedAgain = false)
    {
        EXPECT_EQ("2y2y", read(XMLStreamer::Lenient, "<1x 2y=\"\"></1x><1x 2y=\"\"></1x>"));
        EXPECT_EQ("refused ", read(XMLStreamer::Strict, "<1x 2y=\"\"></1x>"));
        EXPECT_EQ("b", read(XMLStreamer::Lenient, "< !-- >b</!--><!-- >b</!-- -->"));
        for (auto const syntax : { XMLStreamer::Lenient, XMLStreamer::Strict })
            for (char const* const other : { "", "b=\"4\"", "long-name-of-an-attribute=\"5\"", "c=\"6\"" })
            {
                item = plain;
                item.RegisterAttribute(0, "long-name-of-an-attribute", forget);
                bool const isRepeated = syntax == XMLStreamer::Strict && other[0] != '\0' && other[0] != 'c';
                std::string const all = "long-name-of-an-attribute1?b2?c3";
                ASSERT_EQ(0U, read(syntax,
                                   std::string("<item long-name-of-an-attribute=\"1\" b=\"2\" ") + other + "/><item/>")
                                  .find(isRepeated ? "refused " : all.substr(0, 29)))
                    << other << trace;
            }
    }
}

TEST(XMLStreamer, RefusedDuplicateIsAnErrorUntilTheNextRun)
{
    TracingReader reader;
    XMLStructureElement& root = reader.streamer.CreateRootStructureElement("settings");
    root.CreateContentElement("title");
    XMLContentElement& refused = root.CreateContentElement("title");
    refused.SetOnDo(1, [](auto&, auto&) { return false; });
    EXPECT_EQ(StreamerError::DuplicateName, reader.streamer.GetError().GetErrorCode());
    EXPECT_TRUE(reader.Read(std::string(c_declaration) + "<settings><title>a</title></settings>"));
    EXPECT_EQ(StreamerError::Ok, reader.streamer.GetError().GetErrorCode());

    reader.streamer.SetOnUnknownElement(1, [&](auto&) { return root.CreateContentElement("title"), true; });
    EXPECT_FALSE(reader.Read(std::string(c_declaration) + "<settings><other/><title>&x;</title></settings>"));
    EXPECT_EQ(StreamerError::InvalidCode, reader.streamer.GetError().GetErrorCode()) << "what ends the run counts";
}

TEST(XMLStreamer, AnElementMayContainItself)
{
    XMLStreamer streamer;
    XMLStreamer other;
    std::string trace;
    XMLStructureElement& root = streamer.CreateRootStructureElement("menus");
    XMLStructureElement& menu = root.CreateStructureElement("menu");
    XMLContentElement& text = root.CreateContentElement("text");
    menu.UseElement(menu);
    menu.UseElement(text);
    menu.UseElement(root);
    menu.RegisterAttribute(0, "id", [&](auto&, auto& value) { return trace += value + "(", true; });
    menu.SetOnEnd(0, [&](auto&) { return trace += ")", true; });
    text.SetOnDo(0, [&](auto&, auto& content) { return trace += content, true; });
    EXPECT_TRUE(
        streamer.ProcessSource("<?xml version='1.0'?><menus><text>a</text><menu id='1'><menu id='2'><text>b</text>"
                               "</menu><menu id='3'/><text>c</text><menus><menu id='4'/></menus></menu></menus>"));
    EXPECT_EQ("a1(2(b)3()c4())", trace);

    menu.UseElement(text);
    EXPECT_EQ(StreamerError::DuplicateName, streamer.GetError().GetErrorCode());
    XMLContentElement copy(text);
    for (XMLElement* const foreign :
         { static_cast<XMLElement*>(&other.CreateRootStructureElement("a")), static_cast<XMLElement*>(&copy) })
        EXPECT_THROW(root.UseElement(*foreign), Vek::ArgumentException);
}

TEST(XMLStreamer, DeepDescriptionsEndOnASmallStack)
{
    auto const describe = [](void*) -> void*
    {
        XMLStreamer streamer;
        XMLStructureElement* element = &streamer.CreateRootStructureElement("a");
        for (int depth = 0; depth < 100'000; ++depth)
            element = &element->CreateStructureElement("a");
        return nullptr;
    };
    pthread_attr_t attributes;
    pthread_t thread;
    ASSERT_EQ(0, pthread_attr_init(&attributes));
    ASSERT_EQ(0, pthread_attr_setstacksize(&attributes, 256 * 1024));
    ASSERT_EQ(0, pthread_create(&thread, &attributes, describe, nullptr));
    EXPECT_EQ(0, pthread_join(thread, nullptr));
}

TEST(XMLStreamer, DepthAndLengthAreNotLimited)
{
    TracingReader reader;
    reader.streamer.SetOnUnknownElement(1, [](std::string const&) { return true; });
    std::string open;
    std::string closed;
    for (int depth = 0; depth < 100'000; ++depth)
        open += "<x>", closed += "</x>";
    EXPECT_TRUE(reader.Read(c_declaration + ("<settings>" + open) + closed + "</settings>"));

    std::string const text(3'000'000, 'a'); // three reads
    EXPECT_TRUE(reader.Read(c_declaration + ("<settings>\n<title>" + text) + "&amp;" + text + "</title></settings>"));
    EXPECT_EQ("<settings;title=" + text + "&" + text + ";>settings;", reader.trace);
    EXPECT_EQ(6'000'032, reader.streamer.GetParserResult().column);
}
