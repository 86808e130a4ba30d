#pragma once

#include <VekApi.h>

#include <exception>

namespace Vek
{

/// The object is not in a state in which the operation is allowed.
///
/// Carries no text of its own: the class is the whole message, and what() answers its name.
class VEK_API InvalidStateException : public std::exception
{
public:
    InvalidStateException() noexcept;
    InvalidStateException(InvalidStateException const&) noexcept;
    InvalidStateException(InvalidStateException&&) noexcept;
    InvalidStateException& operator=(InvalidStateException const&) noexcept;
    InvalidStateException& operator=(InvalidStateException&&) noexcept;
    ~InvalidStateException() override;

    /// "InvalidStateException".
    char const* what() const noexcept override;
};

} // namespace Vek
