#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>
#include <IXMLStreamer/XMLWriter.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <sstream>
#include <string>

#include <malloc.h>

// What readers and writers allocate: every allocation of an operation fails once, and is given back. A program of its
// own, since it takes the place of the global allocation.

namespace
{

int s_allocationsLeft = -1; // negative: any number
std::size_t s_bytesInUse = 0;

} // namespace

void* operator new(std::size_t size)
{
    if (s_allocationsLeft == 0)
        throw std::bad_alloc();
    s_allocationsLeft -= s_allocationsLeft > 0 ? 1 : 0;
    void* const memory = std::malloc(size == 0 ? 1 : size);
    s_bytesInUse += malloc_usable_size(memory);
    return memory;
}

void operator delete(void* memory) noexcept
{
    s_bytesInUse -= malloc_usable_size(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}

namespace
{

using namespace Vek::Framework::IXMLStreamer::Native;

/// True when `action` came through with so many allocations.
template <class Action>
bool RunsWith(int allocations, Action const& action)
{
    s_allocationsLeft = allocations;
    try
    {
        action();
    }
    catch (std::bad_alloc const&)
    {
        s_allocationsLeft = -1;
        return false;
    }
    s_allocationsLeft = -1;
    return true;
}

} // namespace

TEST(XMLAllocation, AnElementIsWrittenWithAllOfItsAttributesOrNotAtAll)
{
    std::string const value(3000, '<');
    auto const swallow = [&](auto const& emit)
    {
        int const allocations = s_allocationsLeft;
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
            std::size_t const before = s_bytesInUse;
            reader.ProcessSource("<?xml version='1.0'?><a>" + body + "</a>");
            reader.ProcessSource("<?xml version='1.0'?><a></a>"); // a path is kept until then
            EXPECT_LT(s_bytesInUse, before + 100'000) << body.substr(0, 20);
        }
}
