#include <Utilities/UI/DeviceContext.h>

#include <Platform/Windows/WindowsHeader.h>

namespace Vek::Framework::Utilities::UI
{

DeviceContext::DeviceContext(HWND window) noexcept : m_window(window), m_context(GetDC(window))
{
}

DeviceContext::~DeviceContext()
{
    if (m_context != nullptr)
        ReleaseDC(m_window, m_context);
}

DeviceContext::operator HDC() const noexcept
{
    return m_context;
}

} // namespace Vek::Framework::Utilities::UI
