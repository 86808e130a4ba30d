#pragma once

#include <IXMLStreamer/Internal/ElementDescription.h>
#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLElement.h>

#include <string>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native
{

class StreamerError;

/// The description of an element that holds elements. It cannot be copied, since theirs belong to the reader's root.
class VEK_API XMLStructureElement : public XMLElement
{
public:
    XMLStructureElement(XMLStructureElement const&) = delete;
    XMLStructureElement& operator=(XMLStructureElement const&) = delete;
    ~XMLStructureElement() override;

    /// Structure.
    Type GetElementType() const override;

    /// Describe a child. A name that a child has already is a registration error: the reader's error becomes
    /// DuplicateName, and the new description is kept, so that the reference stays valid, but never found.
    XMLContentElement& CreateContentElement(std::string const& name);
    XMLStructureElement& CreateStructureElement(std::string const& name);

    /// Takes an element that is described already as a child, this one or one further out included: menus in menus are
    /// one description that uses itself, and are read as fast as a flat document. It stays what it is where it was
    /// made, under its name, with its handlers. A name that a child has already is refused as above.
    /// Throws ArgumentException for an element of another root or reader, and for a copy.
    void UseElement(XMLElement& element);

    /// The handler that runs when the start tag with all its attributes has been read, from `version` on.
    void SetOnBegin(unsigned int version, StructureHandler handler);
    /// The handler that runs when the end tag has been read, from `version` on.
    void SetOnEnd(unsigned int version, StructureHandler handler);

protected:
    /// `error` is the reader's and outlives this element.
    XMLStructureElement(StreamerError& error, std::string const& name);

private:
    friend class XMLStreamer;

    using Children = Internal::NameTable<Internal::ElementDescription, std::string_view>; // of the elements' names

    friend class Internal::BlockPool;

    VEK_LOCAL XMLStructureElement(StreamerError& error, std::string const& name, Internal::BlockPool* pool,
                                  XMLStructureElement* root);

    VEK_LOCAL void Insert(XMLElement& element);
    VEK_LOCAL void AddChild(XMLElement& element);
    VEK_LOCAL Children::Entry const* FindChildElement(std::string_view name) const;

    StreamerError& m_error;
    Children m_children;
    Internal::VersionedFunctions<StructureHandler> m_onBegin;
    Internal::VersionedFunctions<StructureHandler> m_onEnd;
};

} // namespace Vek::Framework::IXMLStreamer::Native
