#include "Accelerators.h"

#include <string_view>

namespace Invoicing::Dialogs
{

thread_local Accelerators const* Accelerators::s_current = nullptr;

namespace
{

bool IsEdit(HWND window)
{
    wchar_t name[8]{};
    GetClassNameW(window, name, 8);
    return std::wstring_view(name) == L"Edit";
}

/// Insert, delete and undo of the text itself.
bool EditsText(WPARAM key)
{
    return key == VK_INSERT || key == VK_DELETE || key == L'Z' || key == L'Y';
}

} // namespace

Accelerators::Accelerators(HWND window, unsigned short table)
    : m_window(window),
      m_table(LoadAcceleratorsW(nullptr, MAKEINTRESOURCEW(table))),
      m_hook(SetWindowsHookExW(WH_MSGFILTER, Filter, nullptr, GetCurrentThreadId()))
{
    s_current = this;
}

Accelerators::~Accelerators()
{
    s_current = nullptr;
    UnhookWindowsHookEx(m_hook);
}

LRESULT CALLBACK Accelerators::Filter(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == MSGF_DIALOGBOX && s_current != nullptr && s_current->Translate(*reinterpret_cast<MSG*>(lParam)))
        return 1;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

bool Accelerators::Translate(MSG& message) const
{
    bool const isKey = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    if (!isKey || GetAncestor(message.hwnd, GA_ROOT) != m_window)
        return false;
    if (IsEdit(message.hwnd) && EditsText(message.wParam))
        return false;
    return TranslateAcceleratorW(m_window, m_table, &message) != 0;
}

} // namespace Invoicing::Dialogs
