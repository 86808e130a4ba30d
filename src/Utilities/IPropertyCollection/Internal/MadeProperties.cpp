#include <Utilities/IPropertyCollection/Internal/MadeProperties.h>

#include <Exceptions/InvalidStateException.h>
#include <Utilities/IPropertyCollection/Internal/FactoryState.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

#include <algorithm>
#include <utility>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

MadeProperties::~MadeProperties()
{
    for (auto const& property : m_made)
        if (property != nullptr) // one that was not handed over; its maker may have kept it
            property->m_collection = nullptr;
}

Property& MadeProperties::Make(unsigned int id)
{
    auto const& infos = m_target.m_factory.infosById;
    auto const info = infos.find(id);
    if (info == infos.end())
        throw IllegalPropertyCollectionIdException(id);
    std::shared_ptr<Property> property = info->second->CreateProperty();
    if (property == nullptr || property->GetId() != id || property->m_collection != nullptr)
        throw InvalidStateException();
    m_made.push_back(std::move(property));
    m_made.back()->m_collection = &m_target;
    return *m_made.back();
}

void MadeProperties::Reserve()
{
    auto& properties = m_target.m_properties;
    std::size_t const needed = properties.size() + m_made.size();
    if (needed > properties.capacity())
        properties.reserve(properties.empty() ? needed : std::max(needed, 2 * properties.size()));
}

void MadeProperties::Commit() noexcept
{
    bool const hasGrown = m_target.m_properties.size() != m_sizeOfTarget;
    for (auto& property : m_made)
        if (!hasGrown || m_target.FindProperty(property->GetId()) == nullptr)
            m_target.Hold(std::move(property));
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
