#include <Exceptions/ContainerChangedException.h>

namespace Vek
{

ContainerChangedException::ContainerChangedException() noexcept = default;
ContainerChangedException::ContainerChangedException(ContainerChangedException const&) noexcept = default;
ContainerChangedException::ContainerChangedException(ContainerChangedException&&) noexcept = default;
ContainerChangedException& ContainerChangedException::operator=(ContainerChangedException const&) noexcept = default;
ContainerChangedException& ContainerChangedException::operator=(ContainerChangedException&&) noexcept = default;
ContainerChangedException::~ContainerChangedException() = default;

char const* ContainerChangedException::what() const noexcept
{
    return "ContainerChangedException";
}

} // namespace Vek
