#pragma once

#include <Exceptions/UserException.h>
#include <VekApi.h>

#include <memory>
#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

/// A failure of the property collections; the base of what they throw (PropertyCollectionExceptions.h).
///
/// Shape: the 8-bit text, which all copies share, so that copying never throws.
class VEK_API PropertyCollectionFactoryException : public UserException
{
public:
    explicit PropertyCollectionFactoryException(std::string const& message);
    PropertyCollectionFactoryException(PropertyCollectionFactoryException const&) noexcept;
    PropertyCollectionFactoryException& operator=(PropertyCollectionFactoryException const&) noexcept;
    ~PropertyCollectionFactoryException() override;

    /// The text up to its first zero byte.
    char const* what() const noexcept override;
    std::string const& GetErrorDescription() const noexcept;

private:
    std::shared_ptr<std::string const> m_errorDescription;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
