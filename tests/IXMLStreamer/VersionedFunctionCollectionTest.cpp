#include <IXMLStreamer/VersionedFunctionCollection.h>
#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>

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

    std::string called;
    for (unsigned int const version : { 0U, 1U, 2U, 3U, 0xFFFFFFFEU, 0xFFFFFFFFU })
        called += Call(functions, version) + ";";
    EXPECT_EQ(";one;one;refuse;refuse;last;", called);
    EXPECT_EQ("replaced", Call(before, 3));
    EXPECT_EQ("replaced", Call(functions = before, 3));
}

TEST(VersionedFunctionCollection, EmptyFunctionIsABadCall)
{
    Collection functions;
    functions.SetFunction(1, UnknownElementHandler());
    EXPECT_TRUE(functions.CallFunction(0, ""));
    EXPECT_THROW(functions.CallFunction(1, ""), std::bad_function_call);
}

TEST(VersionedFunctionCollection, FunctionOutlivesItsReplacementAndItsCollectionWhileItIsCalled)
{
    auto functions = std::make_unique<VersionedFunctionCollection<AttributeHandler>>();
    std::string const text(100, 'x'); // on the heap, so that a use after its end is seen
    functions->SetFunction(1,
                           [&functions, text](auto&, auto&)
                           {
                               functions->SetFunction(1, [](auto&, auto&) { return false; });
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
    first.SetOnDo(0, [&](auto& element, auto& content)
                  { return trace += element.GetElementName() + "=" + content + ";", true; });
    // The assignment ends this handler, but not before it returns.
    first.RegisterAttribute(0, "a",
                            [&](auto&, auto& value) { return first = second, trace += "a=" + value + ";", true; });
    first.RegisterUnspecifiedAttributes(0, [&](auto& name, auto& value)
                                        { return trace += name + "~" + value + ";", true; });
    XMLContentElement const copy(first);
    EXPECT_EQ("first", copy.GetElementName());
    second = copy;

    std::istringstream document(
        "<?xml version='1.0'?><root><first a='1' b='3'>x</first><second a='2'>y</second></root>");
    EXPECT_TRUE(reader.ProcessSource(document));
    EXPECT_EQ("a=1;b~3;first=x;a=2;second=y;", trace);
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
        auto const note = [&trace, i](auto&, auto&) { return trace += std::to_string(i), true; };
        root.RegisterAttribute(0, name, note);
        root.CreateContentElement(name).SetOnDo(0, note);
        attributes += " " + name + "=''";
        children += "<" + name + "/>";
        expected += std::to_string(i);

        trace.clear();
        std::istringstream document("<?xml version='1.0'?><root" + attributes + ">" + children + "</root>");
        EXPECT_TRUE(reader.ProcessSource(document));
        EXPECT_EQ(expected + expected, trace);
    }
}
