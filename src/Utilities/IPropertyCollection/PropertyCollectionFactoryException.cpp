#include <Utilities/IPropertyCollection/PropertyCollectionFactoryException.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

PropertyCollectionFactoryException::PropertyCollectionFactoryException(std::string const& message)
    : m_errorDescription(std::make_shared<std::string const>(message))
{
}
PropertyCollectionFactoryException::PropertyCollectionFactoryException(
    PropertyCollectionFactoryException const&) noexcept = default;
PropertyCollectionFactoryException& PropertyCollectionFactoryException::operator=(
    PropertyCollectionFactoryException const&) noexcept = default;
PropertyCollectionFactoryException::~PropertyCollectionFactoryException() = default;

char const* PropertyCollectionFactoryException::what() const noexcept
{
    return m_errorDescription->c_str();
}

std::string const& PropertyCollectionFactoryException::GetErrorDescription() const noexcept
{
    return *m_errorDescription;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
