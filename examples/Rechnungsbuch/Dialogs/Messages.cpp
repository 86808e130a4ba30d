#include "Messages.h"

#include <Utilities/WStringHelper.h>

#include <windows.h>

namespace Invoicing::Dialogs
{

namespace
{

using Vek::Framework::Utilities::UI::Control;

int Show(Control const& owner, std::wstring const& text, UINT kind)
{
    return MessageBoxW(owner.IsValid() ? owner.GetHandle() : nullptr, text.c_str(), L"Rechnungsbuch", kind);
}

} // namespace

void ShowFault(Control const& owner, std::wstring const& text)
{
    Show(owner, text, MB_OK | MB_ICONERROR);
}

void ShowException(Control const& owner, char const* what)
{
    using Vek::Framework::Utilities::WStringHelper;
    ShowFault(owner, L"Das war nicht m\u00F6glich.\n\n" + WStringHelper::GetUTF16FromWindows1252(what));
}

bool AskYesNo(Control const& owner, std::wstring const& question)
{
    return Show(owner, question, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

SaveAnswer AskToSave(Control const& owner, std::wstring const& question)
{
    int const answer = Show(owner, question, MB_YESNOCANCEL | MB_ICONWARNING);
    if (answer == IDYES)
        return SaveAnswer::Save;
    return answer == IDNO ? SaveAnswer::Discard : SaveAnswer::Cancel;
}

} // namespace Invoicing::Dialogs
