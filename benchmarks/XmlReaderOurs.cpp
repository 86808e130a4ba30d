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

} // namespace

Totals ReadWithOurs(std::istream& stream)
{
    Totals totals;
    XMLStreamer streamer;
    streamer.SetVersion(1);
    XMLStructureElement& root = streamer.CreateRootStructureElement("settings");
    CountAttributes(root, totals, { "format" });
    CountStructure(root, totals);
    XMLStructureElement& group = root.CreateStructureElement("group");
    CountAttributes(group, totals, { "name", "id" });
    CountStructure(group, totals);
    XMLContentElement& setting = group.CreateContentElement("setting");
    CountAttributes(setting, totals, { "name", "type" });
    setting.SetOnDo(1,
                    [&totals](XMLContentElement const& element, std::string const& content)
                    {
                        CountElement(element, totals);
                        totals.contentBytes += content.size();
                        return true;
                    });
    if (!streamer.ProcessSource(stream))
        throw std::runtime_error(streamer.GetError().GetDescription());
    return totals;
}

} // namespace Benchmarks
