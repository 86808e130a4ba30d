#pragma once

#include <VekApi.h>

#include <exception>

namespace Vek
{

/// The operation has no implementation for this object.
///
/// Carries no text of its own: the class is the whole message, and what() answers its name.
class VEK_API NotImplementedException : public std::exception
{
public:
    NotImplementedException() noexcept;
    NotImplementedException(NotImplementedException const&) noexcept;
    NotImplementedException(NotImplementedException&&) noexcept;
    NotImplementedException& operator=(NotImplementedException const&) noexcept;
    NotImplementedException& operator=(NotImplementedException&&) noexcept;
    ~NotImplementedException() override;

    /// "NotImplementedException".
    char const* what() const noexcept override;
};

} // namespace Vek
