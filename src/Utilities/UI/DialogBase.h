#pragma once

#include <Utilities/UI/ControlMessageLoop.h>
#include <Utilities/UI/OwnerDrawStrategy.h>
#include <Utilities/UI/Window.h>

#include <exception>
#include <memory>
#include <unordered_map>
#include <vector>

namespace Vek::Framework::Utilities::UI
{

/// A modal dialog made from a template among the resources of a program or DLL. Derive a class from it, and override
/// what it shall do; Show then shows it, as often as is wished.
///
/// Lifetime: must live while it is shown. Message loops and strategies that are registered are kept until the dialog
///           closes, in whatever way.
/// Errors:   nothing is thrown through the system. The first exception of a hook, a handler or a strategy closes the
///           dialog, and Show rethrows it; until then none of them is called again.
class VEK_API DialogBase
{
public:
    DialogBase(DialogBase const&) = delete;
    DialogBase& operator=(DialogBase const&) = delete;
    virtual ~DialogBase();

    /// Shows the dialog, waits until it is closed, and answers GetResultCode().
    ///
    /// The owner, which is disabled meanwhile, is the foreground window if it is of this process, else the active
    /// window of this thread. Throws InvalidStateException if the dialog is open already, Win32Exception if there is no
    /// such template or it cannot be shown, and what a hook, a handler or a strategy threw.
    int Show();

protected:
    /// Of the template with that number in `resourceModule`; null is the program.
    DialogBase(unsigned short templateId, HINSTANCE__* resourceModule) noexcept;

    /// The window is there with its controls, and not yet visible. Does nothing by itself.
    virtual void OnInitialize();

    /// A control or the keyboard asks for something: `command` has the control's id in its low 16 bits and the
    /// notification, such as BN_CLICKED, in its high ones. Esc arrives as IDCANCEL (2), Enter as IDOK (1) or the
    /// default button. Answers whether that was dealt with. By itself it answers false and does nothing: also Esc does
    /// not close the dialog until this calls Close.
    virtual bool OnCommand(unsigned int command);

    /// What Show answers, asked for after the dialog has closed; its controls are gone by then. 0 by itself.
    virtual int GetResultCode() const;

    /// Drops the message loops and strategies and closes the dialog. May be called by any hook, handler or strategy,
    /// which goes on to its end. The cross in the caption calls it. Throws InvalidStateException if the dialog is not
    /// open.
    void Close();

    /// As ControlMessageLoop, kept until the dialog closes. Throws InvalidStateException if the dialog is not open or
    /// the control has no handle, ArgumentException for a control that has a loop and for a handler that is empty.
    void RegisterMessageLoopFor(Control control, ControlMessageLoop::Handler handler);

    /// `strategy` draws the items of that owner-drawn control until the dialog closes; one that it had before is
    /// dropped. Throws InvalidStateException if the dialog is not open or the control has no handle, ArgumentException
    /// for no strategy.
    void RegisterOwnerDrawStrategyFor(Control control, std::unique_ptr<OwnerDrawStrategy> strategy);

    /// Without handle if there is no such control. Throws InvalidStateException if the dialog is not open.
    Control GetControlById(int id) const;
    /// Without handle if the dialog is not open.
    Window& GetWindow() noexcept;
    HINSTANCE__* GetResourceModule() const noexcept;

    /// A length for 96 dots per inch, in those of this dialog: rounded up, 10 is 13 at 120. The factor is that of the
    /// first call, which throws InvalidStateException if the dialog is not open. A factor that is no binary fraction
    /// may round up one more.
    int GetDPICorrected(int value) const;

private:
    static long long WindowProcedure(HWND__* window, unsigned int message, unsigned long long wParam,
                                     long long lParam) noexcept;

    template <class Action>
    long long RunGuarded(Action const& action) noexcept;
    long long Process(unsigned int message, unsigned long long wParam, long long lParam);
    bool DrawItem(tagDRAWITEMSTRUCT const& item);
    void Fail() noexcept;
    void AssertShown() const;
    void DropRegistrations() noexcept;

    unsigned short m_templateId;
    HINSTANCE__* m_resourceModule;
    Window m_window;
    std::vector<std::unique_ptr<ControlMessageLoop>> m_messageLoops;
    std::unordered_map<HWND__*, std::shared_ptr<OwnerDrawStrategy>> m_ownerDrawStrategies; // shared with who draws
    mutable double m_dpiFactor;                                                            // NaN until it is asked for
    bool m_isShown = false;
    std::exception_ptr m_exception;
};

} // namespace Vek::Framework::Utilities::UI
