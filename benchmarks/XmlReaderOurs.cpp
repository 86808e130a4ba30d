#include "XmlReaders.h"

#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>

#include <stdexcept>

namespace Benchmarks
{

namespace
{

using namespace Vek::Framework::IXMLStreamer::Native;

void CountAttributes(XMLElement& element, Totals& totals, std::initializer_list<char const*> names)
{
    for (char const* const name : names)
        element.RegisterAttribute(1, name,
                                  [&totals](std::string const& attribute, std::string const& value)
                                  {
                                      ++totals.attributes;
                                      totals.nameBytes += attribute.size();
                                      totals.valueBytes += value.size();
                                      return true;
                                  });
}

void CountElement(XMLElement const& element, Totals& totals)
{
    ++totals.elements;
    totals.nameBytes += element.GetElementName().size();
}

void CountStructure(XMLStructureElement& element, Totals& totals)
{
    element.SetOnBegin(1,
                       [&totals](XMLStructureElement const& begun)
                       {
                           CountElement(begun, totals);
                           return true;
                       });
    element.SetOnEnd(1, [](XMLStructureElement const&) { return true; });
}

void CountContent(XMLContentElement& element, Totals& totals)
{
    element.SetOnDo(1,
                    [&totals](XMLContentElement const& done, std::string const& content)
                    {
                        CountElement(done, totals);
                        totals.contentBytes += content.size();
                        return true;
                    });
}

enum class Nesting
{
    None,
    Groups ///< a group may hold groups
};

void Describe(XMLStreamer& streamer, Totals& totals, Nesting nesting)
{
    streamer.SetVersion(1);
    XMLStructureElement& root = streamer.CreateRootStructureElement("settings");
    CountAttributes(root, totals, { "format" });
    CountStructure(root, totals);
    XMLStructureElement& group = root.CreateStructureElement("group");
    CountAttributes(group, totals, { "name", "id" });
    CountStructure(group, totals);
    XMLContentElement& setting = group.CreateContentElement("setting");
    CountAttributes(setting, totals, { "name", "type" });
    CountContent(setting, totals);
    if (nesting == Nesting::Groups)
        group.UseElement(group);
}

void DescribeInvoice(XMLStreamer& streamer, Totals& totals)
{
    streamer.SetVersion(1);
    XMLStructureElement& root = streamer.CreateRootStructureElement("rechnung");
    CountStructure(root, totals);
    XMLStructureElement& head = root.CreateStructureElement("kopf");
    CountStructure(head, totals);
    XMLStructureElement& item = root.CreateStructureElement("posten");
    CountStructure(item, totals);
    CountContent(root.CreateContentElement("summe"), totals);
    for (char const* const name : { "nummer", "datum", "kunde" })
        CountContent(head.CreateContentElement(name), totals);
    for (char const* const name : { "artikel", "menge", "preis" })
    {
        XMLContentElement& content = item.CreateContentElement(name);
        CountAttributes(content, totals, { "einheit" });
        CountContent(content, totals);
    }
}

void Read(XMLStreamer& streamer, std::istream& stream)
{
    if (!streamer.ProcessSource(stream))
        throw std::runtime_error(streamer.GetError().GetDescription());
}

} // namespace

Totals ReadWithOurs(std::istream& stream)
{
    Totals totals;
    XMLStreamer streamer;
    Describe(streamer, totals, Nesting::None);
    Read(streamer, stream);
    return totals;
}

Totals ReadStrictlyWithOurs(std::istream& stream)
{
    Totals totals;
    XMLStreamer streamer;
    streamer.SetSyntax(XMLStreamer::Strict);
    Describe(streamer, totals, Nesting::None);
    Read(streamer, stream);
    return totals;
}

Totals ReadNestedWithOurs(std::istream& stream)
{
    Totals totals;
    XMLStreamer streamer;
    Describe(streamer, totals, Nesting::Groups);
    Read(streamer, stream);
    return totals;
}

Totals ReadInvoiceWithNewReader(std::istream& stream)
{
    Totals totals;
    XMLStreamer streamer;
    DescribeInvoice(streamer, totals);
    Read(streamer, stream);
    return totals;
}

Totals ReadInvoiceWithUsedReader(std::istream& stream)
{
    struct Reader
    {
        Reader() { DescribeInvoice(streamer, totals); }

        XMLStreamer streamer;
        Totals totals;
    };
    static Reader s_reader;
    s_reader.totals = Totals();
    Read(s_reader.streamer, stream);
    return s_reader.totals;
}

} // namespace Benchmarks
