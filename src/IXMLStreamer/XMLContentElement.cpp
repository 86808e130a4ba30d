#include <IXMLStreamer/XMLContentElement.h>

#include <utility>

namespace Vek::Framework::IXMLStreamer::Native
{

XMLContentElement::XMLContentElement(StreamerError&, std::string const& name) : XMLElement(name)
{
}

XMLContentElement::XMLContentElement(std::string const& name, Internal::BlockPool* pool, XMLStructureElement* root)
    : XMLElement(name, pool, root)
{
}

XMLContentElement::XMLContentElement(XMLContentElement const& other) = default;
XMLContentElement& XMLContentElement::operator=(XMLContentElement const& other) = default;
XMLContentElement::~XMLContentElement() = default;

XMLElement::Type XMLContentElement::GetElementType() const
{
    return Content;
}

void XMLContentElement::SetOnDo(unsigned int version, ContentHandler handler)
{
    m_onDo.Set(version, std::move(handler), m_pool);
}

} // namespace Vek::Framework::IXMLStreamer::Native
