#pragma once

#include <windows.h>

namespace Invoicing::Dialogs
{

/// The keyboard shortcuts of a modal dialog, which the system's loop for dialogs knows nothing of: a key of the table
/// becomes the window's WM_COMMAND. In an edit control, keys that edit text there are left to it.
///
/// For one dialog of a thread at a time; `window` may be gone when this goes.
class Accelerators
{
public:
    /// `table` is a resource of the program.
    Accelerators(HWND window, unsigned short table);
    Accelerators(Accelerators const&) = delete;
    Accelerators& operator=(Accelerators const&) = delete;
    ~Accelerators();

private:
    static LRESULT CALLBACK Filter(int code, WPARAM wParam, LPARAM lParam);
    bool Translate(MSG& message) const;

    static thread_local Accelerators const* s_current;

    HWND m_window;
    HACCEL m_table;
    HHOOK m_hook;
};

} // namespace Invoicing::Dialogs
