// What readers and writers allocate: every allocation of an operation fails once, and is given back.

#include "AllocationLimit.h"

#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>
#include <IXMLStreamer/XMLWriter.h>

using namespace AllocationLimit;
using namespace Vek::Framework::IXMLStreamer::Native;

TEST(XMLAllocation, AnElementIsWrittenWithAllOfItsAttributesOrNotAtAll)
{
    std::string const value(3000, '<');
    auto const swallow = [&](auto const& emit)
    {
        int const allocations = left;
        RunsWith(allocations, [&] { emit("first", "1"), emit("second", value); });
    };
    bool isWritten = false;
    for (int allocations = 0; !isWritten; ++allocations)
    {
        std::ostringstream stream;
        XMLWriter writer;
        EXPECT_TRUE(writer.StartWriting(stream, false) && writer.WriteBeginStructure("a"));
        isWritten = RunsWith(allocations, [&] { EXPECT_TRUE(writer.WriteContent("b", swallow)); });
        EXPECT_EQ(isWritten ? 12'030U : 4U, stream.str().size()) << allocations;
        EXPECT_TRUE(writer.WriteEndStructure() && writer.FinishWriting());
    }
}

TEST(XMLAllocation, AFailedRunOrRegistrationLeavesAReaderThatReads)
{
    std::string const document =
        "<?xml version='1.0' encoding='ISO-8859-1'?><a x='1' y='2' a-long-name-of-an-attribute='3'>"
        "<child-with-a-long-name-1>" +
        std::string(100, 'x') + "</child-with-a-long-name-1></a>";
    for (auto const syntax : { XMLStreamer::Lenient, XMLStreamer::Strict })
    {
        bool isRead = false;
        for (int allocations = 0; !isRead; ++allocations)
        {
            XMLStreamer reader;
            reader.SetSyntax(syntax);
            XMLStructureElement& root = reader.CreateRootStructureElement("a");
            int described = 0;
            auto const describe = [&]
            {
                for (; described < 12; ++described)
                    root.CreateContentElement("child-with-a-long-name-" + std::to_string(described));
            };
            auto const read = [&]
            {
                describe();
                EXPECT_TRUE(reader.ProcessSource(document));
            };
            isRead = RunsWith(allocations, read);
            describe();
            EXPECT_EQ(StreamerError::Ok, reader.GetError().GetErrorCode()) << allocations;
            EXPECT_TRUE(reader.ProcessSource(document)) << allocations;
        }
    }
}

TEST(XMLAllocation, WhatIsRegisteredAnewTakesThePlaceOfWhatItReplaces)
{
    XMLStreamer reader;
    XMLStructureElement& root = reader.CreateRootStructureElement("a");
    XMLContentElement& element = root.CreateContentElement("b");
    std::size_t registered = 0;
    std::size_t settled = 0;
    for (int i = 0; i < 2000; ++i)
    {
        if (i == 2)
            settled = bytesInUse;
        root.SetOnBegin(0, [&](auto&) { return ++registered > 0; });
        element.SetOnDo(0, [&](auto&, auto&) { return ++registered > 0; });
        element.RegisterAttribute(0, "c", [&](auto&, auto&) { return ++registered > 0; });
        element.RegisterUnspecifiedAttributes(0, [&](auto&, auto&) { return ++registered > 0; });
        element = XMLContentElement(element);
        EXPECT_TRUE(reader.ProcessSource("<?xml version='1.0'?><a><b c='' d=''></b></a>"));
    }
    EXPECT_EQ(4U * 2000, registered);
    EXPECT_EQ(settled, bytesInUse);
}

TEST(XMLAllocation, WhatAGiantDocumentNeededIsGivenBack)
{
    std::string const giant(5'000'000, 'x');
    std::string deep = "<x>";
    std::string attributes;
    for (int i = 0; i < 15; ++i)
        deep += deep;
    for (int i = 0; i < 20'000; ++i)
        attributes += " a" + std::to_string(i) + "=\"\"";
    for (std::string const& body :
         { "<x a='" + giant + "'/>", "<b>" + giant + "</b>", "<x " + giant + "=''/>", "<" + giant + "/>", deep + "<b>",
           "<b>&" + giant + ";</b>", "<x" + attributes + "/>" })
        for (auto const syntax : { XMLStreamer::Lenient, XMLStreamer::Strict })
        {
            XMLStreamer reader;
            reader.SetSyntax(syntax);
            reader.CreateRootStructureElement("a").CreateContentElement("b");
            reader.ProcessSource("<?xml version='1.0'?><a></a>");
            std::size_t const before = bytesInUse;
            reader.ProcessSource("<?xml version='1.0'?><a>" + body + "</a>");
            reader.ProcessSource("<?xml version='1.0'?><a></a>"); // a path is kept until then
            EXPECT_LT(bytesInUse, before + 100'000) << body.substr(0, 20);
        }
}
