#include <IXMLStreamer/XMLElement.h>

#include <utility>

namespace Vek::Framework::IXMLStreamer::Native
{

XMLElement::Attributes::Attributes(Internal::BlockPool* pool) : NameTable(pool)
{
}

XMLElement::Attributes::~Attributes() = default;

XMLElement::XMLElement(std::string const& name) : XMLElement(name, nullptr, nullptr)
{
}

XMLElement::XMLElement(std::string const& name, Internal::BlockPool* pool, XMLStructureElement* root)
    : m_name(name),
      m_pool(pool),
      m_root(root)
{
}

XMLElement::XMLElement(XMLElement const& other) : m_name(other.m_name), m_attributes(Copy(other.m_attributes))
{
}

XMLElement::~XMLElement() = default;

// Of an element in a pool, which its kind says nothing of, the memory ends with the pool.
void XMLElement::End::operator()(XMLElement* element) const noexcept
{
    if (element->m_pool == nullptr)
        delete element;
    else
        element->~XMLElement();
}

XMLElement& XMLElement::operator=(XMLElement const& other)
{
    m_attributes = Copy(other.m_attributes);
    return *this;
}

std::string const& XMLElement::GetElementName() const noexcept
{
    return m_name;
}

void XMLElement::RegisterAttribute(unsigned int version, std::string const& name, AttributeHandler handler)
{
    GetAttributes().FindOrAdd(name).Set(version, std::move(handler), m_pool);
}

void XMLElement::RegisterUnspecifiedAttributes(unsigned int version, AttributeHandler handler)
{
    GetAttributes().unspecified.Set(version, std::move(handler), m_pool);
}

XMLElement::Attributes& XMLElement::GetAttributes()
{
    if (!m_attributes)
        m_attributes = Internal::SharedObject<Attributes>::Make(m_pool, m_pool);
    return *m_attributes;
}

// On the heap: what assignments make again and again must not fill a pool.
Internal::SharedObject<XMLElement::Attributes> XMLElement::Copy(Internal::SharedObject<Attributes> const& attributes)
{
    if (!attributes)
        return {};
    auto copy = Internal::SharedObject<Attributes>::Make(nullptr, nullptr);
    copy->AddAll(*attributes);
    copy->unspecified = attributes->unspecified;
    return copy;
}

XMLElement::Attributes::Entry const* XMLElement::FindAttribute(std::string_view name) const
{
    return m_attributes ? m_attributes->Find(name) : nullptr;
}

} // namespace Vek::Framework::IXMLStreamer::Native
