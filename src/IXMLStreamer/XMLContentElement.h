#pragma once

#include <IXMLStreamer/XMLElement.h>

namespace Vek::Framework::IXMLStreamer::Native
{

class StreamerError;

/// The description of an element that holds text.
class VEK_API XMLContentElement : public XMLElement
{
public:
    XMLContentElement(XMLContentElement const& other);
    XMLContentElement& operator=(XMLContentElement const& other);
    ~XMLContentElement() override;

    /// Content.
    Type GetElementType() const override;

    /// The handler of the decoded content from format version `version` on; "" for an empty element.
    void SetOnDo(unsigned int version, ContentHandler handler);

protected:
    /// A content element raises no errors; the argument is there for the sake of one way to make elements.
    XMLContentElement(StreamerError& error, std::string const& name);

private:
    friend class XMLStreamer;
    friend class XMLStructureElement;

    friend class Internal::BlockPool;

    VEK_LOCAL XMLContentElement(std::string const& name, Internal::BlockPool* pool, XMLStructureElement* root);

    Internal::VersionedFunctions<ContentHandler> m_onDo;
};

} // namespace Vek::Framework::IXMLStreamer::Native
