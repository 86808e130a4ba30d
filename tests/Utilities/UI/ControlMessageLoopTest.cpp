// Message loops of controls outside a dialog: who sees a message, who ends first, what is put back.

#include <Utilities/UI/ControlMessageLoop.h>

#include <windows.h>

namespace
{

namespace UI = Vek::Framework::Utilities::UI;
using Loop = UI::ControlMessageLoop;

/// An edit control without a parent.
class ControlMessageLoopTest : public testing::Test
{
protected:
    ControlMessageLoopTest()
        : m_window(CreateWindowExW(0, L"EDIT", L"Anfang", WS_POPUP, 0, 0, 50, 20, nullptr, nullptr, nullptr, nullptr)),
          m_procedure(GetProcedure())
    {
    }

    ~ControlMessageLoopTest() override { DestroyWindow(m_window); }

    LONG_PTR GetProcedure() const { return GetWindowLongPtrW(m_window, GWLP_WNDPROC); }
    LRESULT Send(UINT message = WM_USER) const { return SendMessageW(m_window, message, 7, 8); }

    static Loop::Handler Answering(long long answer)
    {
        return [answer](unsigned int message, unsigned long long wParam, long long lParam, long long& result)
        {
            if (message != WM_USER)
                return false;
            EXPECT_EQ(wParam, 7U);
            EXPECT_EQ(lParam, 8);
            EXPECT_EQ(result, 0);
            result = answer;
            return true;
        };
    }

    HWND m_window;
    LONG_PTR m_procedure;
};

TEST_F(ControlMessageLoopTest, HandlerComesFirstAndTheControlGetsWhatIsLeft)
{
    {
        Loop const loop(UI::Control(m_window), Answering(0x123456789));
        EXPECT_EQ(Send(), 0x123456789);
        EXPECT_EQ(Loop::MessageLoop(m_window, WM_USER, 7, 8), 0x123456789);
        EXPECT_EQ(Loop::MessageLoop(m_window, WM_GETTEXTLENGTH, 0, 0), 6);
        SetWindowTextW(m_window, L"neu");
        EXPECT_EQ(UI::Control(m_window).GetText(), L"neu") << "as without a loop";
        EXPECT_THROW(Loop(UI::Control(m_window), Answering(1)), Vek::ArgumentException);
        EXPECT_EQ(Send(), 0x123456789) << "the refused one changed nothing";
    }
    EXPECT_EQ(GetProcedure(), m_procedure);
    EXPECT_EQ(Send(), 0);
    EXPECT_THROW(Loop({}, Answering(1)), Vek::InvalidStateException);
    EXPECT_THROW(Loop(UI::Control(m_window), {}), Vek::ArgumentException);
    EXPECT_EQ(GetProcedure(), m_procedure);
    EXPECT_EQ("invalid unordered_map<K, T> key",
              MessageOf<std::out_of_range>([&] { Loop::MessageLoop(m_window, WM_USER, 0, 0); }));
}

TEST_F(ControlMessageLoopTest, KeepsTheFirstExceptionAndPassesOn)
{
    int calls = 0;
    Loop loop(UI::Control(m_window),
              [&calls](unsigned int message, unsigned long long, long long, long long&) -> bool
              {
                  if (message == WM_USER || message == WM_GETTEXTLENGTH)
                      throw std::runtime_error(std::to_string(++calls));
                  return false;
              });
    EXPECT_EQ(loop.TakeException(), nullptr);
    EXPECT_EQ(Send(WM_GETTEXTLENGTH), 6) << "the control answers nevertheless";
    EXPECT_EQ(Send(), 0);
    EXPECT_EQ(calls, 1);
    std::exception_ptr const first = loop.TakeException();
    EXPECT_THROW(std::rethrow_exception(first), std::runtime_error);
    EXPECT_THROW(Loop::MessageLoop(m_window, WM_USER, 0, 0), std::runtime_error) << "called by hand, it throws";
    EXPECT_EQ(loop.TakeException(), nullptr);
    EXPECT_EQ(calls, 2);
}

TEST_F(ControlMessageLoopTest, HandlerMayEndItsLoopOrItsWindow)
{
    std::optional<Loop> loop;
    auto const held = std::make_shared<int>(1);
    loop.emplace(UI::Control(m_window),
                 [&loop, held](unsigned int message, unsigned long long, long long, long long&)
                 {
                     if (message == WM_GETTEXTLENGTH)
                         loop.reset();
                     EXPECT_GE(held.use_count(), 2);
                     return false;
                 });
    EXPECT_EQ(Send(WM_GETTEXTLENGTH), 6);
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_EQ(GetProcedure(), m_procedure);

    for (bool const isLoopEnded : { false, true })
    {
        HWND const window = CreateWindowExW(0, L"EDIT", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
        loop.emplace(UI::Control(window),
                     [&loop, window, isLoopEnded](unsigned int message, unsigned long long, long long, long long&)
                     {
                         if (message == WM_USER && isLoopEnded)
                             loop.reset();
                         if (message == WM_USER)
                             DestroyWindow(window);
                         return false;
                     });
        EXPECT_EQ(SendMessageW(window, WM_USER, 0, 0), 0);
        EXPECT_THROW(Loop::MessageLoop(window, WM_USER, 0, 0), std::out_of_range) << "the window has ended it";
        loop.reset(); // puts nothing back
    }
}

WNDPROC s_below = nullptr;

LRESULT CALLBACK OnTop(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT const answer = CallWindowProcW(s_below, window, message, wParam, lParam);
    return message == WM_USER ? answer + 1000 : answer;
}

TEST_F(ControlMessageLoopTest, StaysBelowAnotherProcedureUntilTheWindowIsGone)
{
    std::optional<Loop> loop;
    loop.emplace(UI::Control(m_window), Answering(5));
    s_below = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OnTop)));
    EXPECT_EQ(Send(), 1005);
    loop.reset();
    EXPECT_EQ(GetProcedure(), reinterpret_cast<LONG_PTR>(OnTop)) << "the other one's is not cut off";
    EXPECT_EQ(Send(), 1000);
    EXPECT_EQ(Send(WM_GETTEXTLENGTH), 6);
    EXPECT_THROW(Loop::MessageLoop(m_window, WM_USER, 0, 0), std::out_of_range);
    loop.emplace(UI::Control(m_window), Answering(6));
    EXPECT_EQ(Send(), 1006) << "registered again in its old place";
    EXPECT_THROW(Loop(UI::Control(m_window), Answering(1)), Vek::ArgumentException);
    DestroyWindow(m_window);
    EXPECT_THROW(Loop::MessageLoop(m_window, WM_USER, 0, 0), std::out_of_range);

    // A handle that the system gives out again is free, even while the loop of its former window still lives.
    Loop const again(UI::Control(m_window), Answering(7));
    loop.reset();
    EXPECT_EQ(Loop::MessageLoop(m_window, WM_USER, 7, 8), 7);
}

} // namespace
