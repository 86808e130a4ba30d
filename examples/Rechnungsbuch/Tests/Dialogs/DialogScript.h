#pragma once

#include <windows.h>

namespace Tests
{

/// What a user does, one step after the other: each acts on the dialog or message box in front, when nothing else is to
/// be done. When the steps are over, or a step finds no dialog, whatever is still open is closed, and the latter is a
/// failure of the test.
class DialogScript
{
public:
    using Step = std::function<void(HWND front)>;

    /// `show` shows the first dialog and returns when it is closed.
    static void Run(std::function<void()> const& show, std::vector<Step> steps);

    /// @name Steps
    /// @{

    static Step Command(int id);
    static Step Key(int controlId, int key);
    static Step CtrlKey(int controlId, int key);
    static Step Type(int controlId, std::wstring const& text);
    static Step Select(int listId, int index);
    /// The title and texts of the dialog in front contain this.
    static Step Expect(std::wstring const& text);

    /// @}

    /// Of the window and its controls, each in a line.
    static std::wstring GetTexts(HWND window);
};

} // namespace Tests
