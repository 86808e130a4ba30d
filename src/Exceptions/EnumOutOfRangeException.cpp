#include <Exceptions/EnumOutOfRangeException.h>

namespace Vek
{

EnumOutOfRangeException::EnumOutOfRangeException() noexcept = default;
EnumOutOfRangeException::EnumOutOfRangeException(EnumOutOfRangeException const&) noexcept = default;
EnumOutOfRangeException::EnumOutOfRangeException(EnumOutOfRangeException&&) noexcept = default;
EnumOutOfRangeException& EnumOutOfRangeException::operator=(EnumOutOfRangeException const&) noexcept = default;
EnumOutOfRangeException& EnumOutOfRangeException::operator=(EnumOutOfRangeException&&) noexcept = default;
EnumOutOfRangeException::~EnumOutOfRangeException() = default;

char const* EnumOutOfRangeException::what() const noexcept
{
    return "EnumOutOfRangeException";
}

} // namespace Vek
