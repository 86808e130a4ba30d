#include <Exceptions/NotImplementedException.h>

namespace Vek
{

NotImplementedException::NotImplementedException() noexcept = default;
NotImplementedException::NotImplementedException(NotImplementedException const&) noexcept = default;
NotImplementedException::NotImplementedException(NotImplementedException&&) noexcept = default;
NotImplementedException& NotImplementedException::operator=(NotImplementedException const&) noexcept = default;
NotImplementedException& NotImplementedException::operator=(NotImplementedException&&) noexcept = default;
NotImplementedException::~NotImplementedException() = default;

char const* NotImplementedException::what() const noexcept
{
    return "NotImplementedException";
}

} // namespace Vek
