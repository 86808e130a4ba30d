#pragma once

#include <VekApi.h>

#include <exception>

namespace Vek
{

/// A pointer that must refer to an object is null.
///
/// Carries no text of its own: the class is the whole message, and what() answers its name.
class VEK_API NullPointerException : public std::exception
{
public:
    NullPointerException() noexcept;
    NullPointerException(NullPointerException const&) noexcept;
    NullPointerException(NullPointerException&&) noexcept;
    NullPointerException& operator=(NullPointerException const&) noexcept;
    NullPointerException& operator=(NullPointerException&&) noexcept;
    ~NullPointerException() override;

    /// "NullPointerException".
    char const* what() const noexcept override;
};

} // namespace Vek
