#pragma once

#include <Utilities/UI/Control.h>

namespace Vek::Framework::Utilities::UI
{

/// A top-level window or a dialog. Points at it and never destroys it, as Control does.
class VEK_API Window : public Control
{
public:
    /// No handle.
    Window() noexcept;
    /// `handle` may be null.
    explicit Window(HWND__* handle) noexcept;
    Window(Window const&) noexcept;
    Window& operator=(Window const&) noexcept;
    ~Window() override;

    /// The height of caption and top border.
    int GetNonClientAreaHeight() const;

    /// Sets the width of the whole window and the height of its client area, without a border at the bottom: so it
    /// always was, and dialogs are laid out for it. SetClientSize is exact. The window comes to the front.
    void SetSize(IntSize const& clientSize);

    /// The client area has that size afterwards, whatever borders, menu and scroll bars take; only the system's limits
    /// for windows count.
    void SetClientSize(IntSize const& clientSize);

    /// Sets the size as SetSize does, in the middle of the parent or owner, whose place may be anywhere; in the middle
    /// of the screen only if there is none. The name is kept.
    void CenterOnScreen(IntSize const& clientSize);

    /// Sets the size as SetClientSize does, in the middle of the parent, owner or screen, and as far inside the work
    /// area of that one's monitor as it fits, top and left edge first.
    void CenterInWorkArea(IntSize const& clientSize);

    /// Ends a modal dialog.
    void Close();

    /// Without handle if there is no such control.
    Control GetControlById(int id) const;

    /// The dots per inch that the window is drawn for: 96 is 100 %.
    int GetDPI() const;
};

} // namespace Vek::Framework::Utilities::UI
