#include <Utilities/UI/DialogBase.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/InvalidStateException.h>
#include <Exceptions/Win32Exception.h>
#include <Platform/Windows/WindowsHeader.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace Vek::Framework::Utilities::UI
{

namespace
{

constexpr double c_plainDPI = 96;

HWND FindOwner() noexcept
{
    HWND const foreground = GetForegroundWindow();
    DWORD process = 0;
    GetWindowThreadProcessId(foreground, &process);
    return process == GetCurrentProcessId() ? foreground : GetActiveWindow();
}

} // namespace

DialogBase::DialogBase(unsigned short templateId, HINSTANCE resourceModule) noexcept
    : m_templateId(templateId),
      m_resourceModule(resourceModule),
      m_dpiFactor(std::numeric_limits<double>::quiet_NaN())
{
}

DialogBase::~DialogBase() = default;

int DialogBase::Show()
{
    if (m_isShown)
        throw InvalidStateException();
    m_isShown = true;
    INT_PTR const answer = DialogBoxParamW(m_resourceModule, MAKEINTRESOURCEW(m_templateId), FindOwner(),
                                           WindowProcedure, reinterpret_cast<LPARAM>(this));
    DWORD const error = GetLastError();
    DropRegistrations();
    m_window = Window();
    m_isShown = false;
    if (m_exception != nullptr)
        std::rethrow_exception(std::exchange(m_exception, nullptr));
    if (answer < 0)
        throw Win32Exception(error);
    return GetResultCode();
}

void DialogBase::OnInitialize()
{
}

bool DialogBase::OnCommand(unsigned int)
{
    return false;
}

int DialogBase::GetResultCode() const
{
    return 0;
}

long long DialogBase::WindowProcedure(HWND window, unsigned int message, unsigned long long wParam,
                                      long long lParam) noexcept
{
    if (message == WM_INITDIALOG)
    {
        SetWindowLongPtrW(window, GWLP_USERDATA, lParam);
        reinterpret_cast<DialogBase*>(lParam)->m_window = Window(window);
    }
    auto* const dialog = reinterpret_cast<DialogBase*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return dialog == nullptr ? 0 : dialog->RunGuarded([=] { return dialog->Process(message, wParam, lParam); });
}

/// Nothing is called any more after an exception.
template <class Action>
long long DialogBase::RunGuarded(Action const& action) noexcept
{
    if (m_exception != nullptr)
        return 0;
    try
    {
        return action();
    }
    catch (...)
    {
        Fail();
        return 0;
    }
}

long long DialogBase::Process(unsigned int message, unsigned long long wParam, long long lParam)
{
    switch (message)
    {
    case WM_INITDIALOG:
        OnInitialize();
        return 1;
    case WM_COMMAND:
        return OnCommand(static_cast<unsigned int>(wParam)) ? 1 : 0;
    case WM_CLOSE:
        Close();
        return 1;
    case WM_DRAWITEM:
        return DrawItem(*reinterpret_cast<DRAWITEMSTRUCT const*>(lParam)) ? 1 : 0;
    default:
        return 0;
    }
}

bool DialogBase::DrawItem(DRAWITEMSTRUCT const& item)
{
    auto const found = m_ownerDrawStrategies.find(item.hwndItem);
    if (found == m_ownerDrawStrategies.end())
        return false;
    // Held on to, since drawing may close the dialog or register another.
    std::shared_ptr<OwnerDrawStrategy> const strategy = found->second;
    strategy->Draw(item);
    return true;
}

/// In a handler of an exception.
void DialogBase::Fail() noexcept
{
    if (m_exception == nullptr)
        m_exception = std::current_exception();
    if (m_window.IsValid())
        m_window.Close();
}

void DialogBase::DropRegistrations() noexcept
{
    // The lists are empty first: what is dropped here may have handlers whose ends come back to us.
    std::exchange(m_messageLoops, {}).clear();
    std::exchange(m_ownerDrawStrategies, {}).clear();
}

void DialogBase::Close()
{
    AssertShown();
    DropRegistrations();
    m_window.Close();
}

void DialogBase::AssertShown() const
{
    if (!m_window.IsValid())
        throw InvalidStateException();
}

void DialogBase::RegisterMessageLoopFor(Control control, ControlMessageLoop::Handler handler)
{
    AssertShown();
    if (!handler)
        throw ArgumentException();
    auto guarded = [this, handler = std::move(handler)](unsigned int message, unsigned long long wParam,
                                                        long long lParam, long long& result)
    { return RunGuarded([&] { return handler(message, wParam, lParam, result) ? 1LL : 0LL; }) != 0; };
    m_messageLoops.push_back(std::make_unique<ControlMessageLoop>(control, std::move(guarded)));
}

void DialogBase::RegisterOwnerDrawStrategyFor(Control control, std::unique_ptr<OwnerDrawStrategy> strategy)
{
    AssertShown();
    HWND const window = control.GetHandle();
    if (strategy == nullptr)
        throw ArgumentException();
    std::shared_ptr<OwnerDrawStrategy> former(std::move(strategy));
    m_ownerDrawStrategies[window].swap(former);
}

Control DialogBase::GetControlById(int id) const
{
    return m_window.GetControlById(id);
}

Window& DialogBase::GetWindow() noexcept
{
    return m_window;
}

HINSTANCE DialogBase::GetResourceModule() const noexcept
{
    return m_resourceModule;
}

int DialogBase::GetDPICorrected(int value) const
{
    if (std::isnan(m_dpiFactor))
        m_dpiFactor = m_window.GetDPI() / c_plainDPI;
    double const corrected = std::ceil(value * m_dpiFactor);
    return static_cast<int>(std::clamp(corrected, static_cast<double>(std::numeric_limits<int>::min()),
                                       static_cast<double>(std::numeric_limits<int>::max())));
}

} // namespace Vek::Framework::Utilities::UI
