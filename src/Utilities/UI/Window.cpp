#include <Utilities/UI/Window.h>

#include <Utilities/IntRectangleSets.h>
#include <Utilities/UI/Internal/FontContext.h>

#include <algorithm>

namespace Vek::Framework::Utilities::UI
{

namespace
{

HWND GetReference(HWND window)
{
    HWND const parent = GetParent(window);
    return parent != nullptr ? parent : GetDesktopWindow();
}

WINDOWINFO GetInfo(HWND window)
{
    WINDOWINFO info{};
    info.cbSize = sizeof(info);
    GetWindowInfo(window, &info);
    return info;
}

IntSize GetClientSize(HWND window)
{
    RECT area{};
    GetClientRect(window, &area);
    return { area.right, area.bottom };
}

IntRectangle GetWorkArea(HWND window)
{
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    if (GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info) == 0)
        return Control(GetDesktopWindow()).GetBounds();
    RECT const& area = info.rcWork;
    return IntRectangle::FromCornerPoints(area.left, area.top, area.right, area.bottom);
}

/// Where a piece of `length` begins that lies within `from` to `to`, at `from` if it is too long.
int MoveInside(int begin, int length, int from, int to)
{
    return std::max(std::min(begin, IntArithmetic::Subtract(to, length)), from);
}

} // namespace

Window::Window() noexcept = default;
Window::Window(HWND handle) noexcept : Control(handle)
{
}
Window::Window(Window const&) noexcept = default;
Window& Window::operator=(Window const&) noexcept = default;
Window::~Window() = default;

int Window::GetNonClientAreaHeight() const
{
    WINDOWINFO const info = GetInfo(GetHandle());
    return info.rcClient.top - info.rcWindow.top;
}

void Window::SetSize(IntSize const& clientSize)
{
    int const height = IntArithmetic::Add(clientSize.GetHeight(), GetNonClientAreaHeight());
    SetWindowPos(GetHandle(), nullptr, 0, 0, clientSize.GetWidth(), height, SWP_NOMOVE);
}

void Window::SetClientSize(IntSize const& clientSize)
{
    // Twice, as another width may break the menu in other lines.
    for (int i = 0; i < 2; ++i)
    {
        IntSize const size = GetBounds().GetSize();
        IntPoint const missing = clientSize.ToVector() - GetClientSize(GetHandle()).ToVector();
        IntPoint const whole = size.ToVector() + missing;
        SetWindowPos(GetHandle(), nullptr, 0, 0, whole.GetX(), whole.GetY(),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void Window::CenterOnScreen(IntSize const& clientSize)
{
    IntSize const size(clientSize.GetWidth(), IntArithmetic::Add(clientSize.GetHeight(), GetNonClientAreaHeight()));
    IntPoint const center = Control(GetReference(GetHandle())).GetBounds().GetCenter();
    IntRectangle const bounds = IntRectangle::FromCenterAndSize(center, size);
    SetWindowPos(GetHandle(), nullptr, bounds.GetLeftX(), bounds.GetTopY(), size.GetWidth(), size.GetHeight(), 0);
}

void Window::CenterInWorkArea(IntSize const& clientSize)
{
    SetClientSize(clientSize);
    HWND const reference = GetReference(GetHandle());
    IntRectangle const area = GetWorkArea(reference == GetDesktopWindow() ? GetHandle() : reference);
    IntRectangle const bounds = CenterIn(GetBounds(), Control(reference).GetBounds());
    SetWindowPos(GetHandle(), nullptr,
                 MoveInside(bounds.GetLeftX(), bounds.GetWidth(), area.GetLeftX(), area.GetRightX()),
                 MoveInside(bounds.GetTopY(), bounds.GetHeight(), area.GetTopY(), area.GetBottomY()), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Window::Close()
{
    EndDialog(GetHandle(), 0);
}

Control Window::GetControlById(int id) const
{
    return Control(GetDlgItem(GetHandle(), id));
}

int Window::GetDPI() const
{
    return GetDeviceCaps(FontContext(*this), LOGPIXELSX);
}

} // namespace Vek::Framework::Utilities::UI
