#pragma once

#include <VekApi.h>

#include <exception>

namespace Vek
{

/// An argument is outside what the operation accepts.
///
/// Carries no text of its own: the class is the whole message, and what() answers its name.
class VEK_API ArgumentException : public std::exception
{
public:
    ArgumentException() noexcept;
    ArgumentException(ArgumentException const&) noexcept;
    ArgumentException(ArgumentException&&) noexcept;
    ArgumentException& operator=(ArgumentException const&) noexcept;
    ArgumentException& operator=(ArgumentException&&) noexcept;
    ~ArgumentException() override;

    /// "ArgumentException".
    char const* what() const noexcept override;
};

} // namespace Vek
