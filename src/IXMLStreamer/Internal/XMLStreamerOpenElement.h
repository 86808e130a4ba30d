#pragma once

#include <IXMLStreamer/Internal/ReaderStates.h>
#include <IXMLStreamer/Internal/XMLStreamerReader.h>

// The innermost open element: what comes into it, its handlers and its end. Of every tag, so all of it is inline.

namespace Vek::Framework::IXMLStreamer::Native
{

inline XMLStructureElement const* XMLStreamer::Reader::GetOpenStructure() const
{
    Internal::ElementDescription const& description = m_openElements.GetInnermost().description;
    return description.isStructure ? static_cast<XMLStructureElement const*>(description.element) : nullptr;
}

// That came next last time.
inline XMLStreamer::Reader::Child const* XMLStreamer::Reader::GetExpectedChild() const
{
    Child const* const* const place = m_openElements.IsEmpty() ? nullptr : m_openElements.GetInnermost().nextChild;
    return place == nullptr ? nullptr : *place;
}

inline void XMLStreamer::Reader::PushChild(Child const& child)
{
    Child const**& place = m_openElements.GetInnermost().nextChild;
    if (place != nullptr)
        *place = &child;
    place = &child.successor;
    Internal::ElementDescription const& description = child.value;
    m_openElements.Push(child,
                        description.isStructure
                            ? static_cast<XMLStructureElement const&>(*description.element).m_children.GetFirstPlace()
                            : nullptr);
}

inline XMLStreamer::Reader::Attribute const* XMLStreamer::Reader::FindAttribute(std::string_view name) const
{
    XMLElement const* const element = GetOpenElement();
    return element == nullptr ? nullptr : element->FindAttribute(name);
}

// Every name counts once in a tag. One that is described knows the tag that had it last; unless no tag ever had: it may
// have been described since its first occurrence in this one.

inline void XMLStreamer::Reader::BeginAttributeNames()
{
    m_attributeNames.Clear();
    ++m_tagNumber;
}

inline bool XMLStreamer::Reader::HasOccurred(Attribute const* attribute, std::string_view name)
{
    if (attribute != nullptr && attribute->lastTag != 0)
        return attribute->lastTag == m_tagNumber;
    return m_attributeNames.Contains(name);
}

inline void XMLStreamer::Reader::NoteAttribute(Attribute const* attribute, std::string_view name)
{
    m_attributeNames.Add(name);
    if (attribute != nullptr)
        attribute->lastTag = m_tagNumber;
}

// Handlers; true where there is none to ask.

template <class F, class... Arguments>
bool XMLStreamer::Reader::Call(Internal::VersionedFunctions<F> const& handlers, Arguments const&... arguments) const
{
    auto const handler = handlers.Find(m_version);
    return !handler || (*handler)(arguments...);
}

// Of an attribute that is not described, where the innermost element has one for those; null otherwise.
inline XMLElement::AttributeHandlers const* XMLStreamer::Reader::GetUnspecifiedHandlers() const
{
    XMLElement const* const element = GetOpenElement();
    return element != nullptr && element->m_attributes ? &element->m_attributes->unspecified : nullptr;
}

inline bool XMLStreamer::Reader::CallAttributeHandler(Attribute const* attribute, std::string const& name) const
{
    auto const* const handlers = attribute != nullptr ? &attribute->value : GetUnspecifiedHandlers();
    if (handlers != nullptr)
        if (auto const handler = handlers->Find(m_version); handler)
            return (*handler)(name, m_value);
    return Call(m_onUnknownAttribute, name, m_value);
}

inline bool XMLStreamer::Reader::CallBeginHandler() const
{
    XMLStructureElement const* const structure = GetOpenStructure();
    return structure == nullptr || Call(structure->m_onBegin, *structure);
}

inline bool XMLStreamer::Reader::CallContentHandler(std::string const& content) const
{
    Internal::ElementDescription const& description = m_openElements.GetInnermost().description;
    if (description.element == nullptr || description.isStructure)
        return true;
    auto const& element = static_cast<XMLContentElement const&>(*description.element);
    return Call(element.m_onDo, element, content);
}

inline bool XMLStreamer::Reader::CallEndHandler() const
{
    XMLStructureElement const* const structure = GetOpenStructure();
    return structure == nullptr || Call(structure->m_onEnd, *structure);
}

inline void XMLStreamer::Reader::RequireAgreement(bool isAgreed, Params& params)
{
    if (!isAgreed)
        RaiseError(StreamerError::UserDefinedError, "", params);
}

// Consumers.

inline void XMLStreamer::Reader::EndStartTag(Params& params)
{
    Internal::ElementDescription const& description = m_openElements.GetInnermost().description;
    if (description.element == nullptr)
        params.nextStateId = Internal::Undescribed;
    else
        params.nextStateId = description.isStructure ? Internal::ElementLevel : Internal::Content;
    m_value.clear();
    RequireAgreement(CallBeginHandler(), params);
}

inline void XMLStreamer::Reader::EndContent(Params& params)
{
    params.nextStateId = Internal::ContentEnd;
    RequireAgreement(CallContentHandler(m_value), params);
}

inline void XMLStreamer::Reader::EndElement(Params& params)
{
    bool const isAgreed = CallEndHandler();
    RequireAgreement(isAgreed, params);
    if (!isAgreed)
        return;
    m_openElements.Pop();
    params.nextStateId = m_openElements.IsEmpty() ? Internal::AfterRoot : Internal::ElementLevel;
}

} // namespace Vek::Framework::IXMLStreamer::Native
