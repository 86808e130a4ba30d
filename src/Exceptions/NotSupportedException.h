#pragma once

#include <VekApi.h>

#include <exception>

namespace Vek
{

/// The operation is not supported for this kind of value.
///
/// Carries no text of its own: the class is the whole message, and what() answers its name.
class VEK_API NotSupportedException : public std::exception
{
public:
    NotSupportedException() noexcept;
    NotSupportedException(NotSupportedException const&) noexcept;
    NotSupportedException(NotSupportedException&&) noexcept;
    NotSupportedException& operator=(NotSupportedException const&) noexcept;
    NotSupportedException& operator=(NotSupportedException&&) noexcept;
    ~NotSupportedException() override;

    /// "NotSupportedException".
    char const* what() const noexcept override;
};

} // namespace Vek
