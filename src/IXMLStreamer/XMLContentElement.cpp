#include <IXMLStreamer/XMLContentElement.h>

#include <utility>

namespace Vek::Framework::IXMLStreamer::Native
{

XMLContentElement::XMLContentElement(StreamerError&, std::string const& name) : XMLElement(name)
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
    m_onDo.SetFunction(version, std::move(handler));
}

} // namespace Vek::Framework::IXMLStreamer::Native
