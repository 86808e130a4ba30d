#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>
#include <IXMLStreamer/XMLWriter.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <sstream>
#include <string>

// Every allocation of an operation fails once. A program of its own, since it takes the place of the global allocation.

namespace
{

int s_allocationsLeft = -1; // negative: any number

} // namespace

void* operator new(std::size_t size)
{
    if (s_allocationsLeft == 0)
        throw std::bad_alloc();
    s_allocationsLeft -= s_allocationsLeft > 0 ? 1 : 0;
    return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
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
