#include <IXMLStreamer/XMLElement.h>

#include <utility>

namespace Vek::Framework::IXMLStreamer::Native
{

namespace
{

template <class T>
Internal::SharedObject<T> Copy(Internal::SharedObject<T> const& object)
{
    return object ? Internal::SharedObject<T>(T(*object)) : object;
}

} // namespace

XMLElement::XMLElement(std::string const& name) : m_name(name)
{
}

XMLElement::XMLElement(XMLElement const& other)
    : m_name(other.m_name),
      m_attributes(Copy(other.m_attributes)),
      m_unspecifiedAttributes(other.m_unspecifiedAttributes)
{
}

XMLElement::~XMLElement() = default;

XMLElement& XMLElement::operator=(XMLElement const& other)
{
    m_attributes = Copy(other.m_attributes);
    m_unspecifiedAttributes = other.m_unspecifiedAttributes;
    return *this;
}

std::string const& XMLElement::GetElementName() const noexcept
{
    return m_name;
}

void XMLElement::RegisterAttribute(unsigned int version, std::string const& name, AttributeHandler handler)
{
    if (!m_attributes)
        m_attributes = Internal::SharedObject<Attributes>(Attributes());
    m_attributes->FindOrAdd(name).SetFunction(version, std::move(handler));
}

void XMLElement::RegisterUnspecifiedAttributes(unsigned int version, AttributeHandler handler)
{
    m_unspecifiedAttributes.SetFunction(version, std::move(handler));
}

XMLElement::Attributes::Entry const* XMLElement::FindAttribute(std::string_view name) const
{
    return m_attributes ? m_attributes->Find(name) : nullptr;
}

} // namespace Vek::Framework::IXMLStreamer::Native
