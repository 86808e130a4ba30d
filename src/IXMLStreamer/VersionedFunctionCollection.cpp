#include <IXMLStreamer/VersionedFunctionCollection.h>

namespace Vek::Framework::IXMLStreamer::Native
{

template class VEK_API VersionedFunctionCollectionBase<UnknownElementHandler>;
template class VEK_API VersionedFunctionCollectionBase<AttributeHandler>;
template class VEK_API VersionedFunctionCollectionBase<ContentHandler>;
template class VEK_API VersionedFunctionCollectionBase<StructureHandler>;
template class VEK_API VersionedFunctionCollection<UnknownElementHandler>;
template class VEK_API VersionedFunctionCollection<AttributeHandler>;
template class VEK_API VersionedFunctionCollection<ContentHandler>;
template class VEK_API VersionedFunctionCollection<StructureHandler>;

} // namespace Vek::Framework::IXMLStreamer::Native
