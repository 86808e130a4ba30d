#pragma once

#include <Utilities/IPropertyCollection/PropertyCollection.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

/// New properties for a collection, which gets them all at once or none.
class MadeProperties
{
public:
    explicit MadeProperties(PropertyCollection& target) noexcept
        : m_target(target),
          m_sizeOfTarget(target.m_properties.size())
    {
    }
    MadeProperties(MadeProperties const&) = delete;
    MadeProperties& operator=(MadeProperties const&) = delete;
    ~MadeProperties();

    /// A property as the kind makes it, which names the target as its collection already.
    /// Throws IllegalPropertyCollectionIdException for an unknown kind and InvalidStateException when the kind gives no
    /// property, one of another id, or one that a collection holds already.
    Property& Make(unsigned int id);

    /// Room for all, so that Commit cannot fail.
    void Reserve();
    /// Appends them, except those that a callback has given the target meanwhile.
    void Commit() noexcept;

private:
    PropertyCollection& m_target;
    std::size_t m_sizeOfTarget;
    std::vector<std::shared_ptr<Property>> m_made;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
