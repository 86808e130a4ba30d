#include <Exceptions/NotSupportedException.h>

namespace Vek
{

NotSupportedException::NotSupportedException() noexcept = default;
NotSupportedException::NotSupportedException(NotSupportedException const&) noexcept = default;
NotSupportedException::NotSupportedException(NotSupportedException&&) noexcept = default;
NotSupportedException& NotSupportedException::operator=(NotSupportedException const&) noexcept = default;
NotSupportedException& NotSupportedException::operator=(NotSupportedException&&) noexcept = default;
NotSupportedException::~NotSupportedException() = default;

char const* NotSupportedException::what() const noexcept
{
    return "NotSupportedException";
}

} // namespace Vek
