#include <Exceptions/NullPointerException.h>

namespace Vek
{

NullPointerException::NullPointerException() noexcept = default;
NullPointerException::NullPointerException(NullPointerException const&) noexcept = default;
NullPointerException::NullPointerException(NullPointerException&&) noexcept = default;
NullPointerException& NullPointerException::operator=(NullPointerException const&) noexcept = default;
NullPointerException& NullPointerException::operator=(NullPointerException&&) noexcept = default;
NullPointerException::~NullPointerException() = default;

char const* NullPointerException::what() const noexcept
{
    return "NullPointerException";
}

} // namespace Vek
