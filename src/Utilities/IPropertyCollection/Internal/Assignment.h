#pragma once

#include <Utilities/IPropertyCollection/Internal/FactoryState.h>
#include <Utilities/IPropertyCollection/Internal/MadeProperties.h>
#include <Utilities/IPropertyCollection/Internal/PropertyFinder.h>

#include <cstddef>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

/// Gives a collection the values of another one's properties, all of them or none: what is missing is made and filled
/// first, what changes is kept and put back when a later property throws. Nothing is allocated when all are there,
/// except for the first time in a factory.
class Assignment
{
public:
    Assignment(PropertyCollection& target, PropertyCollection const& source);
    Assignment(Assignment const&) = delete;
    Assignment& operator=(Assignment const&) = delete;
    ~Assignment();

    void Run();

private:
    void MakeMissing();
    void ChangePresent();
    void Keep(Property const& property, std::size_t likelyIndex);
    void PutBack();

    PropertyCollection const& m_source;
    std::size_t m_size; // of the source; what callbacks add is not copied
    MadeProperties m_made;
    PropertyFinder m_present;
    Backup& m_backup;
    PropertyFinder m_kept;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
