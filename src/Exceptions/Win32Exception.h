#pragma once

#include <VekApi.h>

#include <exception>
#include <string>

namespace Vek
{

/// A call of the operating system failed.
///
/// Shape: the finished text only; the code is not kept apart from it and not looked up in the system's message table.
class VEK_API Win32Exception : public std::exception
{
public:
    /// `code` is what GetLastError() answered right after the failing call: 32 bits, also where unsigned long has 64.
    /// Throws std::bad_alloc when there is no memory for the text; so may copying.
    explicit Win32Exception(unsigned long code);

    Win32Exception(Win32Exception const&);
    Win32Exception(Win32Exception&&) noexcept;
    Win32Exception& operator=(Win32Exception const&);
    Win32Exception& operator=(Win32Exception&&) noexcept;
    ~Win32Exception() override;

    /// "Error code: " and the code in unsigned decimal: 5 gives "Error code: 5".
    char const* what() const noexcept override;

private:
    std::string m_message;
};

} // namespace Vek
