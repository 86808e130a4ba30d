#include <Exceptions/Win32Exception.h>

#include <cstdint>

namespace Vek
{

Win32Exception::Win32Exception(unsigned long code)
    : m_message("Error code: " + std::to_string(static_cast<std::uint32_t>(code)))
{
}

Win32Exception::Win32Exception(Win32Exception const&) = default;
Win32Exception::Win32Exception(Win32Exception&&) noexcept = default;
Win32Exception& Win32Exception::operator=(Win32Exception const&) = default;
Win32Exception& Win32Exception::operator=(Win32Exception&&) noexcept = default;
Win32Exception::~Win32Exception() = default;

char const* Win32Exception::what() const noexcept
{
    return m_message.c_str();
}

} // namespace Vek
