#include <Exceptions/ArgumentException.h>

namespace Vek
{

ArgumentException::ArgumentException() noexcept = default;
ArgumentException::ArgumentException(ArgumentException const&) noexcept = default;
ArgumentException::ArgumentException(ArgumentException&&) noexcept = default;
ArgumentException& ArgumentException::operator=(ArgumentException const&) noexcept = default;
ArgumentException& ArgumentException::operator=(ArgumentException&&) noexcept = default;
ArgumentException::~ArgumentException() = default;

char const* ArgumentException::what() const noexcept
{
    return "ArgumentException";
}

} // namespace Vek
