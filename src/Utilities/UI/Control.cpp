#include <Utilities/UI/Control.h>

#include <Exceptions/InvalidStateException.h>
#include <Platform/Windows/WindowsHeader.h>
#include <Utilities/UI/Internal/TextAnalysis.h>

namespace Vek::Framework::Utilities::UI
{

namespace
{

IntRectangle ToRectangle(RECT const& rectangle)
{
    return IntRectangle::FromCornerPoints(rectangle.left, rectangle.top, rectangle.right, rectangle.bottom);
}

} // namespace

Control::Control() noexcept = default;
Control::Control(HWND handle) noexcept : m_handle(handle)
{
}
Control::Control(Control const&) noexcept = default;
Control& Control::operator=(Control const&) noexcept = default;
Control::~Control() = default;

void Control::AssertHandleNotNull() const
{
    if (m_handle == nullptr)
        throw InvalidStateException();
}

bool Control::IsValid() const noexcept
{
    return m_handle != nullptr;
}

HWND Control::GetHandle() const
{
    AssertHandleNotNull();
    return m_handle;
}

void Control::SetText(std::wstring const& text)
{
    SetWindowTextW(GetHandle(), text.c_str());
}

std::wstring Control::GetText() const
{
    int const length = GetWindowTextLengthW(GetHandle());
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    // The length may be more than what is there.
    text.resize(static_cast<std::size_t>(GetWindowTextW(m_handle, text.data(), length + 1)));
    return text;
}

HFONT Control::GetFont() const
{
    return reinterpret_cast<HFONT>(SendMessageW(GetHandle(), WM_GETFONT, 0, 0));
}

void Control::SetFont(HFONT font)
{
    SendMessageW(GetHandle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), 1);
}

void Control::SetEnabled(bool isEnabled)
{
    EnableWindow(GetHandle(), isEnabled ? TRUE : FALSE);
}

void Control::SetVisible(bool isVisible)
{
    ShowWindow(GetHandle(), isVisible ? SW_SHOW : SW_HIDE);
}

IntRectangle Control::GetBounds() const
{
    RECT bounds{};
    GetWindowRect(GetHandle(), &bounds);
    return ToRectangle(bounds);
}

IntRectangle Control::GetBoundsInParent() const
{
    RECT bounds{};
    GetWindowRect(GetHandle(), &bounds);
    if ((GetWindowLongPtrW(m_handle, GWL_STYLE) & WS_CHILD) != 0)
        MapWindowPoints(HWND_DESKTOP, GetAncestor(m_handle, GA_PARENT), reinterpret_cast<POINT*>(&bounds), 2);
    return ToRectangle(bounds);
}

void Control::SetBounds(IntRectangle const& bounds)
{
    MoveWindow(GetHandle(), bounds.GetLeftX(), bounds.GetTopY(), bounds.GetWidth(), bounds.GetHeight(), TRUE);
}

void Control::Redraw() const
{
    InvalidateRect(GetHandle(), nullptr, TRUE);
}

IntSize Control::GetSingleLineSize(std::wstring const& text) const
{
    return TextAnalysis(*this, text).GetSize();
}

int Control::GetRequiredHeightForFixedWidth(std::wstring const& text, int width) const
{
    TextAnalysis const analysis(*this, text);
    return analysis.GetSize().GetHeight() * analysis.CountLines(width);
}

int Control::GetTextHeight(std::wstring const& text, int width) const
{
    return text.empty() ? GetSingleLineSize(L" ").GetHeight() : GetRequiredHeightForFixedWidth(text, width);
}

} // namespace Vek::Framework::Utilities::UI
