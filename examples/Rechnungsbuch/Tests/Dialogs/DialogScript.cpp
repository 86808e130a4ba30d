#include "DialogScript.h"

#include <gtest/gtest.h>

namespace Tests
{

namespace
{

constexpr int c_patience = 200; // ticks without a dialog

/// Of this thread, until it is set again.
void HoldCtrl(bool isHeld)
{
    BYTE keys[256]{};
    keys[VK_CONTROL] = isHeld ? 0x80 : 0;
    SetKeyboardState(keys);
}

std::vector<DialogScript::Step> s_steps;
std::size_t s_next = 0;
int s_missed = 0;

BOOL CALLBACK FindFront(HWND window, LPARAM found)
{
    wchar_t name[16]{};
    GetClassNameW(window, name, 16);
    if (std::wstring(name) != L"#32770" || !IsWindowVisible(window) || !IsWindowEnabled(window))
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD)
{
    HoldCtrl(false);
    HWND front = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindFront, reinterpret_cast<LPARAM>(&front));
    if (front == nullptr)
        s_missed += s_next < s_steps.size() ? 1 : 0;
    else if (s_next < s_steps.size() && s_missed < c_patience)
        s_steps[s_next++](front);
    else
        EndDialog(front, 0);
}

BOOL CALLBACK AddText(HWND window, LPARAM texts)
{
    wchar_t text[1024]{};
    SendMessageW(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
    reinterpret_cast<std::wstring*>(texts)->append(text).append(L"\n");
    return TRUE;
}

} // namespace

void DialogScript::Run(std::function<void()> const& show, std::vector<Step> steps)
{
    s_steps = std::move(steps);
    s_next = 0;
    s_missed = 0;
    UINT_PTR const timer = SetTimer(nullptr, 0, 10, Tick);
    show();
    KillTimer(nullptr, timer);
    EXPECT_EQ(s_next, s_steps.size()) << "the dialog was closed too early";
}

DialogScript::Step DialogScript::Command(int id)
{
    return [id](HWND front) { PostMessageW(front, WM_COMMAND, static_cast<WPARAM>(id), 0); };
}

DialogScript::Step DialogScript::Key(int controlId, int key)
{
    return [=](HWND front) { PostMessageW(GetDlgItem(front, controlId), WM_KEYDOWN, static_cast<WPARAM>(key), 0); };
}

DialogScript::Step DialogScript::CtrlKey(int controlId, int key)
{
    return [press = Key(controlId, key)](HWND front)
    {
        HoldCtrl(true);
        press(front);
    };
}

DialogScript::Step DialogScript::Type(int controlId, std::wstring const& text)
{
    return [=](HWND front)
    {
        SendMessageW(front, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(front, controlId)), TRUE);
        SetDlgItemTextW(front, controlId, text.c_str());
    };
}

DialogScript::Step DialogScript::Select(int listId, int index)
{
    return [=](HWND front)
    {
        SendDlgItemMessageW(front, listId, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
        SendMessageW(front, WM_COMMAND, MAKEWPARAM(listId, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(GetDlgItem(front, listId)));
    };
}

DialogScript::Step DialogScript::Expect(std::wstring const& text)
{
    return [text](HWND front)
    {
        std::wstring const texts = GetTexts(front);
        EXPECT_NE(texts.find(text), std::wstring::npos) << "no " << testing::PrintToString(text) << " in\n"
                                                        << testing::PrintToString(texts);
    };
}

std::wstring DialogScript::GetTexts(HWND window)
{
    std::wstring texts;
    AddText(window, reinterpret_cast<LPARAM>(&texts));
    EnumChildWindows(window, AddText, reinterpret_cast<LPARAM>(&texts));
    return texts;
}

} // namespace Tests
