#include <Exceptions/InvalidCastException.h>

namespace Vek
{

InvalidCastException::InvalidCastException() noexcept = default;
InvalidCastException::InvalidCastException(InvalidCastException const&) noexcept = default;
InvalidCastException::InvalidCastException(InvalidCastException&&) noexcept = default;
InvalidCastException& InvalidCastException::operator=(InvalidCastException const&) noexcept = default;
InvalidCastException& InvalidCastException::operator=(InvalidCastException&&) noexcept = default;
InvalidCastException::~InvalidCastException() = default;

char const* InvalidCastException::what() const noexcept
{
    return "InvalidCastException";
}

} // namespace Vek
