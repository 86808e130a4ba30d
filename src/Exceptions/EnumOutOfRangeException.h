#pragma once

#include <VekApi.h>

#include <exception>

namespace Vek
{

/// An enumeration value is none of the known ones.
///
/// Carries no text of its own: the class is the whole message, and what() answers its name.
class VEK_API EnumOutOfRangeException : public std::exception
{
public:
    EnumOutOfRangeException() noexcept;
    EnumOutOfRangeException(EnumOutOfRangeException const&) noexcept;
    EnumOutOfRangeException(EnumOutOfRangeException&&) noexcept;
    EnumOutOfRangeException& operator=(EnumOutOfRangeException const&) noexcept;
    EnumOutOfRangeException& operator=(EnumOutOfRangeException&&) noexcept;
    ~EnumOutOfRangeException() override;

    /// "EnumOutOfRangeException".
    char const* what() const noexcept override;
};

} // namespace Vek
