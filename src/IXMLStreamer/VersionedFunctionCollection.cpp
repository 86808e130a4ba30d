#include <IXMLStreamer/VersionedFunctionCollection.h>

#include <utility>

namespace Vek::Framework::IXMLStreamer::Native
{

template <class F>
VersionedFunctionCollectionBase<F>::VersionedFunctionCollectionBase() = default;

template <class F>
VersionedFunctionCollectionBase<F>::VersionedFunctionCollectionBase(VersionedFunctionCollectionBase const& other) =
    default;

template <class F>
VersionedFunctionCollectionBase<F>& VersionedFunctionCollectionBase<F>::operator=(
    VersionedFunctionCollectionBase const& other) = default;

template <class F>
VersionedFunctionCollectionBase<F>::~VersionedFunctionCollectionBase() = default;

template <class F>
void VersionedFunctionCollectionBase<F>::SetFunction(unsigned int version, F function)
{
    m_functions.Set(version, std::move(function), nullptr);
}

template <class F>
F const* VersionedFunctionCollectionBase<F>::GetFunction(unsigned int version) const
{
    return FindFunction(version).Get();
}

template <class... Arguments>
VersionedFunctionCollection<std::function<bool(Arguments...)>>::VersionedFunctionCollection() = default;

template <class... Arguments>
VersionedFunctionCollection<std::function<bool(Arguments...)>>::VersionedFunctionCollection(
    VersionedFunctionCollection const& other) = default;

template <class... Arguments>
VersionedFunctionCollection<std::function<bool(Arguments...)>>& VersionedFunctionCollection<
    std::function<bool(Arguments...)>>::operator=(VersionedFunctionCollection const& other) = default;

template <class... Arguments>
VersionedFunctionCollection<std::function<bool(Arguments...)>>::~VersionedFunctionCollection() = default;

template <class... Arguments>
bool VersionedFunctionCollection<std::function<bool(Arguments...)>>::CallFunction(unsigned int version,
                                                                                  Arguments... arguments) const
{
    auto const function = this->FindFunction(version);
    return !function || (*function)(arguments...);
}

template <class... Arguments>
bool VersionedFunctionCollection<std::function<bool(Arguments...)>>::CallFunction(bool& isFound, unsigned int version,
                                                                                  Arguments... arguments) const
{
    auto const function = this->FindFunction(version);
    isFound = static_cast<bool>(function);
    return !isFound || (*function)(arguments...);
}

// The bases first: a derived instance would make theirs implicitly, and without export.
template class VEK_API VersionedFunctionCollectionBase<UnknownElementHandler>;
template class VEK_API VersionedFunctionCollectionBase<AttributeHandler>;
template class VEK_API VersionedFunctionCollectionBase<ContentHandler>;
template class VEK_API VersionedFunctionCollectionBase<StructureHandler>;
template class VEK_API VersionedFunctionCollection<UnknownElementHandler>;
template class VEK_API VersionedFunctionCollection<AttributeHandler>;
template class VEK_API VersionedFunctionCollection<ContentHandler>;
template class VEK_API VersionedFunctionCollection<StructureHandler>;

} // namespace Vek::Framework::IXMLStreamer::Native
