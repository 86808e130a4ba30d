#pragma once

#include <Utilities/IntRectangle.h>
#include <Utilities/UI/WindowTypes.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities::UI
{

/// A window of the system: its text, font, state, place, and how much room a text needs in it.
///
/// Ownership: points at a window and never destroys it; copying copies the handle. Using it after the window is gone
///            does nothing or reads nothing.
/// Errors:    without a handle, everything but IsValid throws InvalidStateException. What the system refuses is not
/// told.
class VEK_API Control
{
public:
    /// No handle.
    Control() noexcept;
    /// `handle` may be null.
    explicit Control(HWND__* handle) noexcept;
    Control(Control const&) noexcept;
    Control& operator=(Control const&) noexcept;
    virtual ~Control();

    /// Whether there is a handle; the window may be gone nevertheless.
    bool IsValid() const noexcept;
    HWND__* GetHandle() const;

    /// Up to its first 0.
    void SetText(std::wstring const& text);
    /// Empty for a control without text.
    std::wstring GetText() const;

    /// Null for the system's font. Stays its owner's: the control uses it until it gets another.
    HFONT__* GetFont() const;
    void SetFont(HFONT__* font);

    void SetEnabled(bool isEnabled);
    void SetVisible(bool isVisible);

    /// In the coordinates of the screen.
    IntRectangle GetBounds() const;
    /// In those of the parent's client area, as SetBounds takes them; for a window without parent as GetBounds.
    IntRectangle GetBoundsInParent() const;
    /// In the coordinates of the parent's client area, and of the screen for a window without parent.
    void SetBounds(IntRectangle const& bounds);

    /// Everything is painted anew with the next WM_PAINT, its background too.
    void Redraw() const;

    /// Width and height of the text in the control's font, all in one line: line feeds do not count as such.
    /// Throws InvalidStateException for an empty text, which has no size.
    IntSize GetSingleLineSize(std::wstring const& text) const;

    /// How high the text is when it is broken between words to fit into `width`, less a margin of three pixels, and at
    /// its line feeds. A word is not broken. Throws InvalidStateException for an empty text.
    int GetRequiredHeightForFixedWidth(std::wstring const& text, int width) const;

    /// The same, where an empty text takes one line.
    int GetTextHeight(std::wstring const& text, int width) const;

protected:
    void AssertHandleNotNull() const;

private:
    HWND__* m_handle = nullptr;
};

} // namespace Vek::Framework::Utilities::UI
