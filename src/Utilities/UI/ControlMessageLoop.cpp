#include <Utilities/UI/ControlMessageLoop.h>

#include <Exceptions/ArgumentException.h>
#include <Platform/Windows/WindowsHeader.h>

#include <new>
#include <stdexcept>
#include <unordered_map>
#include <utility>

namespace Vek::Framework::Utilities::UI
{

namespace
{

WNDPROC GetProcedure(HWND window) noexcept
{
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC));
}

WNDPROC SetProcedure(HWND window, WNDPROC procedure) noexcept
{
    return reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

} // namespace

/// A window with our procedure. Whoever calls the handler holds on to this, since the loop may end meanwhile.
struct ControlMessageLoop::Subclass
{
    HWND window = nullptr;              // null when it is gone
    WNDPROC previous = nullptr;         // what got the messages before us
    std::shared_ptr<Handler> handler{}; // null when the loop has ended
    std::exception_ptr exception{};

    /// To the handler. Also held while it runs, so that it may end its own loop.
    bool Handle(UINT message, WPARAM wParam, LPARAM lParam, long long& result) const
    {
        std::shared_ptr<Handler> const running = handler;
        return running != nullptr && exception == nullptr && (*running)(message, wParam, lParam, result);
    }

    /// To the previous procedure, unless the handler has destroyed the window.
    LRESULT Pass(HWND target, UINT message, WPARAM wParam, LPARAM lParam) const
    {
        if (window == nullptr || (handler == nullptr && !IsWindow(target)))
            return 0;
        return CallWindowProcW(previous, target, message, wParam, lParam);
    }
};

/// All of them. Never destroyed, as a host's own objects may end later; holds no memory while it is empty.
struct ControlMessageLoop::Subclasses
{
    std::unordered_map<HWND, std::shared_ptr<Subclass>> map;

    std::shared_ptr<Subclass> Find(HWND window) const noexcept
    {
        auto const found = map.find(window);
        return found == map.end() ? nullptr : found->second;
    }

    void Remove(HWND window) noexcept
    {
        map.erase(window);
        if (map.empty())
            map = {};
    }
};

ControlMessageLoop::Subclasses& ControlMessageLoop::GetSubclasses() noexcept
{
    alignas(Subclasses) static unsigned char s_memory[sizeof(Subclasses)];
    static Subclasses* const s_message_loops = new (s_memory) Subclasses;
    return *s_message_loops;
}

ControlMessageLoop::ControlMessageLoop(Control control, Handler handler)
{
    HWND const window = control.GetHandle();
    if (!handler)
        throw ArgumentException();
    auto own = std::make_shared<Handler>(std::move(handler));
    auto fresh = std::make_shared<Subclass>();
    std::shared_ptr<Subclass>& entry = GetSubclasses().map[window];
    if (entry != nullptr && entry->handler != nullptr)
        throw ArgumentException();
    if (entry == nullptr) // else our procedure is still there, below another
    {
        entry = std::move(fresh);
        entry->window = window;
        entry->previous = GetProcedure(window);
        SetProcedure(window, Procedure);
    }
    entry->handler = std::move(own);
    entry->exception = nullptr;
    m_subclass = entry;
}

ControlMessageLoop::~ControlMessageLoop()
{
    m_subclass->handler = nullptr;
    HWND const window = m_subclass->window;
    if (window == nullptr || (GetProcedure(window) != &Procedure && IsWindow(window)))
        return;
    SetProcedure(window, m_subclass->previous);
    GetSubclasses().Remove(window);
}

long long ControlMessageLoop::MessageLoop(HWND window, unsigned int message, unsigned long long wParam,
                                          long long lParam)
{
    std::shared_ptr<Subclass> const subclass = GetSubclasses().Find(window);
    if (subclass == nullptr || subclass->handler == nullptr)
        throw std::out_of_range("invalid unordered_map<K, T> key");
    long long result = 0;
    return subclass->Handle(message, wParam, lParam, result) ? result : subclass->Pass(window, message, wParam, lParam);
}

/// The installed procedure. Other than MessageLoop, it lets nothing through the system and watches the window's end.
long long ControlMessageLoop::Procedure(HWND window, unsigned int message, unsigned long long wParam, long long lParam)
{
    std::shared_ptr<Subclass> const subclass = GetSubclasses().Find(window);
    if (subclass == nullptr)
        return DefWindowProcW(window, message, wParam, lParam);
    long long result = 0;
    bool isDone = false;
    try
    {
        isDone = subclass->Handle(message, wParam, lParam, result);
    }
    catch (...)
    {
        if (subclass->exception == nullptr)
            subclass->exception = std::current_exception();
    }
    if (!isDone)
        result = subclass->Pass(window, message, wParam, lParam);
    if (message == WM_NCDESTROY && subclass->window != nullptr)
    {
        subclass->window = nullptr;
        GetSubclasses().Remove(window);
    }
    return result;
}

std::exception_ptr ControlMessageLoop::TakeException() noexcept
{
    return std::exchange(m_subclass->exception, nullptr);
}

} // namespace Vek::Framework::Utilities::UI
