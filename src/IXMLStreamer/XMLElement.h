#pragma once

#include <IXMLStreamer/Internal/BlockPool.h>
#include <IXMLStreamer/Internal/NameTable.h>
#include <IXMLStreamer/Internal/SharedObject.h>
#include <IXMLStreamer/Internal/VersionedFunctions.h>
#include <IXMLStreamer/VersionedFunctionCollection.h>
#include <VekApi.h>

#include <memory>
#include <string>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native
{

/// The description of an element that a document may hold: its name, and what is to be done with its attributes.
///
/// Made by XMLStreamer and XMLStructureElement, which own it; references stay valid as long as the reader and the root.
/// Handlers may register and replace handlers of any element while they run: one that is being called stays alive until
/// it returns, and what is registered counts from the next attribute, content or tag on.
class VEK_API XMLElement
{
public:
    enum Type : unsigned int
    {
        Structure = 0, ///< holds elements
        Content = 1    ///< holds text
    };

    /// A copy that belongs to no reader.
    XMLElement(XMLElement const& other);
    /// Takes over copies of the handlers; the name stays, since it is what the parent finds this element by.
    XMLElement& operator=(XMLElement const& other);
    virtual ~XMLElement();

    virtual Type GetElementType() const = 0;

    std::string const& GetElementName() const noexcept;

    /// The handler of the attribute `name` from format version `version` on, in place of one for the same version.
    void RegisterAttribute(unsigned int version, std::string const& name, AttributeHandler handler);

    /// The handler of all attributes without a handler of their own. An attribute that is registered, if only for later
    /// versions, does not come here.
    void RegisterUnspecifiedAttributes(unsigned int version, AttributeHandler handler);

protected:
    explicit XMLElement(std::string const& name);

private:
    friend class XMLStreamer;
    friend class XMLStructureElement;

    friend class XMLContentElement;
    friend class Internal::BlockPool;

    using AttributeHandlers = Internal::VersionedFunctions<AttributeHandler>;
    struct VEK_LOCAL Attributes : Internal::NameTable<AttributeHandlers, std::string>
    {
        explicit Attributes(Internal::BlockPool* pool);
        ~Attributes(); // out of line: it seldom happens where holders are counted

        AttributeHandlers unspecified;
    };

    struct VEK_LOCAL End
    {
        void operator()(XMLElement* element) const noexcept;
    };

    /// Made in `pool`, which lives as long as the root, unless that is null.
    VEK_LOCAL XMLElement(std::string const& name, Internal::BlockPool* pool, XMLStructureElement* root);

    VEK_LOCAL Attributes& GetAttributes();
    static VEK_LOCAL Internal::SharedObject<Attributes> Copy(Internal::SharedObject<Attributes> const& attributes);
    VEK_LOCAL Attributes::Entry const* FindAttribute(std::string_view name) const;

    std::string m_name;
    Internal::BlockPool* m_pool = nullptr;
    XMLStructureElement* m_root = nullptr;   // null for a copy
    std::unique_ptr<XMLElement, End> m_next; // below the same root, so that the end of a deep one takes no stack
    Internal::SharedObject<Attributes> m_attributes; // none before the first; an assignment replaces them all
};

} // namespace Vek::Framework::IXMLStreamer::Native
