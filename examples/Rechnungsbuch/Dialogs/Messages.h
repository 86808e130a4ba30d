// Messages of the program to its user, in boxes. `owner` may be without handle.

#pragma once

#include <Utilities/UI/Control.h>

#include <string>

namespace Invoicing::Dialogs
{

void ShowFault(Vek::Framework::Utilities::UI::Control const& owner, std::wstring const& text);

/// What an exception tells, which is meant for those who look after the program.
void ShowException(Vek::Framework::Utilities::UI::Control const& owner, char const* what);

bool AskYesNo(Vek::Framework::Utilities::UI::Control const& owner, std::wstring const& question);

enum class SaveAnswer
{
    Save,
    Discard,
    Cancel,
};

SaveAnswer AskToSave(Vek::Framework::Utilities::UI::Control const& owner, std::wstring const& question);

} // namespace Invoicing::Dialogs
