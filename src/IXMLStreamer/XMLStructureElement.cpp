#include <IXMLStreamer/XMLStructureElement.h>

#include <Exceptions/ArgumentException.h>
#include <IXMLStreamer/StreamerError.h>

#include <utility>

namespace Vek::Framework::IXMLStreamer::Native
{

XMLStructureElement::XMLStructureElement(StreamerError& error, std::string const& name)
    : XMLStructureElement(error, name, nullptr, nullptr)
{
}

// A root where `root` is null.
XMLStructureElement::XMLStructureElement(StreamerError& error, std::string const& name, Internal::BlockPool* pool,
                                         XMLStructureElement* root)
    : XMLElement(name, pool, root != nullptr ? root : this),
      m_error(error),
      m_children(pool)
{
}

XMLStructureElement::~XMLStructureElement()
{
    while (m_next != nullptr)
        m_next = std::move(m_next->m_next);
}

XMLElement::Type XMLStructureElement::GetElementType() const
{
    return Structure;
}

XMLContentElement& XMLStructureElement::CreateContentElement(std::string const& name)
{
    XMLContentElement& created = *Internal::BlockPool::Make<XMLContentElement>(m_pool, name, m_pool, m_root);
    Insert(created);
    return created;
}

XMLStructureElement& XMLStructureElement::CreateStructureElement(std::string const& name)
{
    XMLStructureElement& created =
        *Internal::BlockPool::Make<XMLStructureElement>(m_pool, m_error, name, m_pool, m_root);
    Insert(created);
    return created;
}

void XMLStructureElement::UseElement(XMLElement& element)
{
    if (element.m_root != m_root)
        throw ArgumentException();
    AddChild(element);
}

void XMLStructureElement::Insert(XMLElement& element)
{
    element.m_next = std::move(m_root->m_next);
    m_root->m_next.reset(&element);
    AddChild(element);
}

void XMLStructureElement::AddChild(XMLElement& element)
{
    if (m_children.Find(element.m_name) == nullptr)
        m_children.Add(element.m_name) = { &element, element.GetElementType() == Structure };
    else
        m_error.RaiseError(StreamerError::DuplicateName, -1, -1, "");
}

XMLStructureElement::Children::Entry const* XMLStructureElement::FindChildElement(std::string_view name) const
{
    return m_children.Find(name);
}

void XMLStructureElement::SetOnBegin(unsigned int version, StructureHandler handler)
{
    m_onBegin.Set(version, std::move(handler), m_pool);
}

void XMLStructureElement::SetOnEnd(unsigned int version, StructureHandler handler)
{
    m_onEnd.Set(version, std::move(handler), m_pool);
}

} // namespace Vek::Framework::IXMLStreamer::Native
