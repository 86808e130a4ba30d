#pragma once

#include <IXMLStreamer/VersionedFunctionCollectionBase.h>
#include <VekApi.h>

#include <functional>
#include <string>

namespace Vek::Framework::IXMLStreamer::Native
{

class VEK_API XMLContentElement;
class VEK_API XMLStructureElement;

using UnknownElementHandler = std::function<bool(std::string const& name)>;
using AttributeHandler = std::function<bool(std::string const& name, std::string const& value)>;
using ContentHandler = std::function<bool(XMLContentElement const& element, std::string const& content)>;
using StructureHandler = std::function<bool(XMLStructureElement const& element)>;

/// A collection that calls its functions. There are four, one for each kind of handler above.
template <class F>
class VEK_TEMPLATE_API VersionedFunctionCollection;

template <class... Arguments>
class VEK_TEMPLATE_API VersionedFunctionCollection<std::function<bool(Arguments...)>>
    : public VersionedFunctionCollectionBase<std::function<bool(Arguments...)>>
{
public:
    VersionedFunctionCollection();
    VersionedFunctionCollection(VersionedFunctionCollection const& other);
    VersionedFunctionCollection& operator=(VersionedFunctionCollection const& other);
    ~VersionedFunctionCollection() override;

    /// Calls the function that GetFunction finds and answers its result; true when there is none.
    /// Throws std::bad_function_call when the stored function is empty.
    bool CallFunction(unsigned int version, Arguments... arguments) const;

    /// The same; `isFound` says whether there was a function.
    bool CallFunction(bool& isFound, unsigned int version, Arguments... arguments) const;
};

// The library holds the four instances and exports them; hosts take them from there. The members are defined in
// VersionedFunctionCollection.cpp, so that no other source makes a hidden copy that would hide the exported one.
#if !defined(VEK_BUILDING_LIBRARY)
extern template class VEK_API VersionedFunctionCollectionBase<UnknownElementHandler>;
extern template class VEK_API VersionedFunctionCollectionBase<AttributeHandler>;
extern template class VEK_API VersionedFunctionCollectionBase<ContentHandler>;
extern template class VEK_API VersionedFunctionCollectionBase<StructureHandler>;
extern template class VEK_API VersionedFunctionCollection<UnknownElementHandler>;
extern template class VEK_API VersionedFunctionCollection<AttributeHandler>;
extern template class VEK_API VersionedFunctionCollection<ContentHandler>;
extern template class VEK_API VersionedFunctionCollection<StructureHandler>;
#endif

} // namespace Vek::Framework::IXMLStreamer::Native
