#pragma once

#include <VekApi.h>

#include <exception>

namespace Vek
{

/// A container was changed while it was being walked.
///
/// Carries no text of its own: the class is the whole message, and what() answers its name.
class VEK_API ContainerChangedException : public std::exception
{
public:
    ContainerChangedException() noexcept;
    ContainerChangedException(ContainerChangedException const&) noexcept;
    ContainerChangedException(ContainerChangedException&&) noexcept;
    ContainerChangedException& operator=(ContainerChangedException const&) noexcept;
    ContainerChangedException& operator=(ContainerChangedException&&) noexcept;
    ~ContainerChangedException() override;

    /// "ContainerChangedException".
    char const* what() const noexcept override;
};

} // namespace Vek
