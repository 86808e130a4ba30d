#pragma once

#include <Utilities/UI/WindowTypes.h>
#include <VekApi.h>

namespace Vek::Framework::Utilities::UI
{

/// The device context of a window's client area, to draw and measure with.
///
/// Ownership: owns the context and gives it back in its destructor, so it is not copied. Select the former objects
///            again before; the window must still be there.
class VEK_API DeviceContext
{
public:
    /// Null is the whole screen.
    explicit DeviceContext(HWND__* window) noexcept;
    DeviceContext(DeviceContext const&) = delete;
    DeviceContext& operator=(DeviceContext const&) = delete;
    ~DeviceContext();

    /// Null if the system had none.
    operator HDC__*() const noexcept;

private:
    HWND__* m_window;
    HDC__* m_context;
};

} // namespace Vek::Framework::Utilities::UI
