#pragma once

#include <Utilities/UI/DialogBase.h>

#include <windows.h>

#include "Dialogs.h"

namespace UI = Vek::Framework::Utilities::UI;

/// The example dialog with hooks from outside. Without any, it closes by itself at once.
class TestDialog : public UI::DialogBase
{
public:
    explicit TestDialog(unsigned short templateId = DIALOG_EXAMPLE) : DialogBase(templateId, nullptr) {}

    std::function<void(TestDialog&)> onInitialize;
    std::function<bool(TestDialog&, unsigned int)> onCommand = [](TestDialog& dialog, unsigned int command)
    { return LOWORD(command) == IDOK && (dialog.Close(), true); };
    int resultCode = 0;

    using DialogBase::Close;
    using DialogBase::GetControlById;
    using DialogBase::GetDPICorrected;
    using DialogBase::GetWindow;
    using DialogBase::RegisterMessageLoopFor;
    using DialogBase::RegisterOwnerDrawStrategyFor;

    void Post(unsigned int message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        PostMessageW(GetWindow().GetHandle(), message, wParam, lParam);
    }

    /// Shows it and runs `action` in it, which then closes it by a posted message.
    int Run(std::function<void(TestDialog&)> action)
    {
        onInitialize = std::move(action);
        return Show();
    }

private:
    void OnInitialize() override
    {
        if (onInitialize)
            onInitialize(*this);
        Post(WM_COMMAND, IDOK);
    }

    bool OnCommand(unsigned int command) override { return onCommand(*this, command); }
    int GetResultCode() const override { return resultCode; }
};
