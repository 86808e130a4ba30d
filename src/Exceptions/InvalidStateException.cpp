#include <Exceptions/InvalidStateException.h>

namespace Vek
{

InvalidStateException::InvalidStateException() noexcept = default;
InvalidStateException::InvalidStateException(InvalidStateException const&) noexcept = default;
InvalidStateException::InvalidStateException(InvalidStateException&&) noexcept = default;
InvalidStateException& InvalidStateException::operator=(InvalidStateException const&) noexcept = default;
InvalidStateException& InvalidStateException::operator=(InvalidStateException&&) noexcept = default;
InvalidStateException::~InvalidStateException() = default;

char const* InvalidStateException::what() const noexcept
{
    return "InvalidStateException";
}

} // namespace Vek
