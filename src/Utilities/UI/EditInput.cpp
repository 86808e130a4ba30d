#include <Utilities/UI/EditInput.h>

#include <Platform/Windows/WindowsHeader.h>

namespace Vek::Framework::Utilities::UI
{

void SelectCharacter(Control const& edit, std::size_t position)
{
    HWND const window = edit.GetHandle();
    std::wstring const text = edit.GetText();
    std::size_t end = position < text.size() ? position + 1 : position;
    if (end < text.size() && IS_SURROGATE_PAIR(text[position], text[end]))
        ++end;
    // A dialog keeps its default button right when it moves the focus by itself.
    SendMessageW(GetParent(window), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window), TRUE);
    if (GetFocus() != window)
        SetFocus(window);
    SendMessageW(window, EM_SETSEL, position, static_cast<LPARAM>(end));
    SendMessageW(window, EM_SCROLLCARET, 0, 0);
}

bool TryGetAmount(Control const& edit, Decimal& amount, AmountFault& fault)
{
    if (TryParseAmount(edit.GetText(), amount, fault))
        return true;
    SelectCharacter(edit, fault.position);
    return false;
}

bool TryGetAmount(Control const& edit, Decimal& amount)
{
    AmountFault fault;
    return TryGetAmount(edit, amount, fault);
}

bool TryGetDate(Control const& edit, DateTime& date, DateTextFault& fault)
{
    if (TryParseGerman(edit.GetText(), date, fault))
        return true;
    SelectCharacter(edit, fault.position);
    return false;
}

bool TryGetDate(Control const& edit, DateTime& date)
{
    DateTextFault fault;
    return TryGetDate(edit, date, fault);
}

} // namespace Vek::Framework::Utilities::UI
