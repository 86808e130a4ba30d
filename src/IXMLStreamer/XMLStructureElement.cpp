#include <IXMLStreamer/XMLStructureElement.h>

#include <Exceptions/ArgumentException.h>
#include <IXMLStreamer/StreamerError.h>

#include <utility>

namespace Vek::Framework::IXMLStreamer::Native
{

XMLStructureElement::XMLStructureElement(StreamerError& error, std::string const& name)
    : XMLElement(name),
      m_error(error)
{
    m_home = &m_elements;
}

XMLStructureElement::~XMLStructureElement() = default;

XMLElement::Type XMLStructureElement::GetElementType() const
{
    return Structure;
}

XMLContentElement& XMLStructureElement::CreateContentElement(std::string const& name)
{
    std::unique_ptr<XMLContentElement> element(new XMLContentElement(m_error, name));
    XMLContentElement& created = *element;
    InsertElement(std::move(element));
    return created;
}

XMLStructureElement& XMLStructureElement::CreateStructureElement(std::string const& name)
{
    std::unique_ptr<XMLStructureElement> element(new XMLStructureElement(m_error, name));
    XMLStructureElement& created = *element;
    InsertElement(std::move(element));
    return created;
}

void XMLStructureElement::UseElement(XMLElement& element)
{
    if (element.m_home != m_home)
        throw ArgumentException();
    AddChild(element);
}

void XMLStructureElement::InsertElement(std::unique_ptr<XMLElement> element)
{
    constexpr std::size_t c_fewest = 16;
    if (m_home->capacity() == 0)
        m_home->reserve(c_fewest);
    XMLElement& inserted = *m_home->emplace_back(std::move(element));
    inserted.m_home = m_home;
    AddChild(inserted);
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
    m_onBegin.SetFunction(version, std::move(handler));
}

void XMLStructureElement::SetOnEnd(unsigned int version, StructureHandler handler)
{
    m_onEnd.SetFunction(version, std::move(handler));
}

} // namespace Vek::Framework::IXMLStreamer::Native
