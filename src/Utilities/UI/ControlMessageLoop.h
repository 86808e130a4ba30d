#pragma once

#include <Utilities/UI/Control.h>

#include <exception>
#include <functional>
#include <memory>

namespace Vek::Framework::Utilities::UI
{

/// Lets a handler see a control's messages before the control does, as long as this object lives.
///
/// Ownership: the control is its owner's. The object puts back what it replaced; if another procedure was installed on
///            top meanwhile, ours stays below it until the window is gone and only passes messages on. A loop whose
///            window is gone puts nothing back.
/// Errors:    nothing is thrown through the system. What the handler throws is kept (TakeException); that message and
///            those after it go to the control.
/// Threads:   for that of the window only; all loops share a map that has no lock.
class VEK_API ControlMessageLoop
{
public:
    /// Answers whether the message is dealt with; `result` is what the sender gets then. It may destroy its own loop,
    /// close the dialog or destroy the window. It also sees WM_NCDESTROY, the last message of a window.
    using Handler =
        std::function<bool(unsigned int message, unsigned long long wParam, long long lParam, long long& result)>;

    /// Throws InvalidStateException for a control without handle, ArgumentException for one that has a loop already and
    /// for a handler that is empty.
    ControlMessageLoop(Control control, Handler handler);
    ControlMessageLoop(ControlMessageLoop const&) = delete;
    ControlMessageLoop& operator=(ControlMessageLoop const&) = delete;
    ~ControlMessageLoop();

    /// Gives a message to the window's loop and answers what comes of it, for a host with a window procedure of its
    /// own. Throws std::out_of_range ("invalid unordered_map<K, T> key") if the window has no loop, and what the
    /// handler throws.
    static long long MessageLoop(HWND__* window, unsigned int message, unsigned long long wParam, long long lParam);

    /// The first exception of the handler since the last call, null if there was none. From then on the handler is
    /// called again.
    std::exception_ptr TakeException() noexcept;

private:
    struct Subclass;
    struct Subclasses;

    static Subclasses& GetSubclasses() noexcept;
    static long long Procedure(HWND__* window, unsigned int message, unsigned long long wParam, long long lParam);

    std::shared_ptr<Subclass> m_subclass;
};

} // namespace Vek::Framework::Utilities::UI
