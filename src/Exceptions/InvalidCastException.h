#pragma once

#include <VekApi.h>

#include <exception>

namespace Vek
{

/// A value does not have the type that the operation asks for.
///
/// Carries no text of its own: the class is the whole message, and what() answers its name.
class VEK_API InvalidCastException : public std::exception
{
public:
    InvalidCastException() noexcept;
    InvalidCastException(InvalidCastException const&) noexcept;
    InvalidCastException(InvalidCastException&&) noexcept;
    InvalidCastException& operator=(InvalidCastException const&) noexcept;
    InvalidCastException& operator=(InvalidCastException&&) noexcept;
    ~InvalidCastException() override;

    /// "InvalidCastException".
    char const* what() const noexcept override;
};

} // namespace Vek
