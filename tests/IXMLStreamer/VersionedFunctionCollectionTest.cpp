#include <IXMLStreamer/VersionedFunctionCollection.h>
#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>

using namespace Vek::Framework::IXMLStreamer::Native;

namespace
{

using Collection = VersionedFunctionCollection<UnknownElementHandler>;

std::string Call(Collection const& functions, unsigned int version)
{
    std::string called;
    bool const isAgreed = functions.CallFunction(version, called);
    EXPECT_EQ(isAgreed, functions.GetFunction(version) == nullptr || called != "refuse");
    return called;
}

// Writes `text` where the caller looks, although handlers see it as constant; answers false for "refuse".
UnknownElementHandler Answering(std::string const& text)
{
    return [text](std::string const& target)
    {
        const_cast<std::string&>(target) = text;
        return text != "refuse";
    };
}

} // namespace

TEST(VersionedFunctionCollection, GreatestVersionUpToTheWantedOneIsCalled)
{
    Collection functions;
    EXPECT_EQ("", Call(functions, 0xFFFFFFFFU));
    functions.SetFunction(3, Answering("replaced"));
    functions.SetFunction(0xFFFFFFFFU, Answering("last"));
    functions.SetFunction(1, Answering("one"));
    Collection const before(functions);
    functions.SetFunction(3, Answering("refuse"));

    struct Row
    {
        unsigned int version;
        char const* called;
    };
    for (Row const& row : { Row{ 0, "" }, Row{ 1, "one" }, Row{ 2, "one" }, Row{ 3, "refuse" },
                            Row{ 0xFFFFFFFEU, "refuse" }, Row{ 0xFFFFFFFFU, "last" } })
        EXPECT_EQ(row.called, Call(functions, row.version)) << row.version;
    EXPECT_EQ("replaced", Call(before, 3));
    EXPECT_EQ("replaced", Call(functions = before, 3));
}

TEST(VersionedFunctionCollection, EmptyFunctionIsABadCall)
{
    VersionedFunctionCollection<StructureHandler> functions;
    functions.SetFunction(1, StructureHandler());
    XMLStreamer reader;
    XMLStructureElement const& element = reader.CreateRootStructureElement("root");
    EXPECT_TRUE(functions.CallFunction(0, element));
    EXPECT_THROW(functions.CallFunction(1, element), std::bad_function_call);
}

TEST(VersionedFunctionCollection, FunctionOutlivesItsReplacementAndItsCollectionWhileItIsCalled)
{
    auto functions = std::make_unique<VersionedFunctionCollection<AttributeHandler>>();
    std::string const text(100, 'x'); // on the heap, so that a use after its end is seen
    functions->SetFunction(1,
                           [&functions, text](std::string const&, std::string const&)
                           {
                               functions->SetFunction(1, [](std::string const&, std::string const&) { return false; });
                               EXPECT_FALSE(functions->CallFunction(1, "", ""));
                               functions.reset();
                               return text == std::string(100, 'x');
                           });
    EXPECT_TRUE(functions->CallFunction(1, "", ""));
    EXPECT_EQ(nullptr, functions);
}

TEST(XMLElement, CopyTakesTheHandlersAndAnAssignedElementKeepsItsName)
{
    XMLStreamer reader;
    XMLStructureElement& root = reader.CreateRootStructureElement("root");
    XMLContentElement& first = root.CreateContentElement("first");
    XMLContentElement& second = root.CreateContentElement("second");
    std::string trace;
    first.SetOnDo(0,
                  [&](XMLContentElement const& element, std::string const& content)
                  {
                      trace += element.GetElementName() + "=" + content + ";";
                      return true;
                  });
    first.RegisterAttribute(0, "a",
                            [&](std::string const&, std::string const& value)
                            {
                                first = second; // ends this handler, but not before it returns
                                trace += "a=" + value + ";";
                                return true;
                            });
    XMLContentElement const copy(first);
    EXPECT_EQ("first", copy.GetElementName());
    second = copy;

    std::istringstream document("<?xml version='1.0'?><root><first a='1'>x</first><second a='2'>y</second></root>");
    EXPECT_TRUE(reader.ProcessSource(document));
    EXPECT_EQ("a=1;first=x;a=2;second=y;", trace);
}

TEST(XMLElement, EveryRegisteredNameIsFoundHoweverManyThereAre)
{
    XMLStreamer reader;
    XMLStructureElement& root = reader.CreateRootStructureElement("root");
    std::string expected;
    std::string trace;
    std::string attributes;
    std::string children;
    for (int i = 0; i < 30; ++i) // names of equal length and with equal ends among them
    {
        std::string const name = "n" + std::to_string(i * 7) + "n";
        root.RegisterAttribute(0, name, [&trace, i](auto&, auto&) { return trace += std::to_string(i), true; });
        root.CreateContentElement(name).SetOnDo(0,
                                                [&trace, i](auto&, auto&) { return trace += std::to_string(i), true; });
        attributes += " " + name + "=''";
        children += "<" + name + "/>";
        expected += std::to_string(i);

        trace.clear();
        std::istringstream document("<?xml version='1.0'?><root" + attributes + ">" + children + "</root>");
        EXPECT_TRUE(reader.ProcessSource(document));
        EXPECT_EQ(expected + expected, trace);
    }
}
