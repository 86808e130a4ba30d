// Real dialogs driven by posted messages: hooks, owners, drawing, exceptions, lifetimes, and no handle lost.

#include <Exceptions/Win32Exception.h>

#include "TestDialog.h"

namespace
{

using Vek::InvalidStateException;

/// Draws by a function.
class Strategy : public UI::OwnerDrawStrategy
{
public:
    explicit Strategy(std::function<void(DRAWITEMSTRUCT const&)> draw) : m_draw(std::move(draw)) {}
    void Draw(DRAWITEMSTRUCT item) override { m_draw(item); }

private:
    std::function<void(DRAWITEMSTRUCT const&)> m_draw;
};

std::unique_ptr<Strategy> Drawing(std::function<void(DRAWITEMSTRUCT const&)> draw)
{
    return std::make_unique<Strategy>(std::move(draw));
}

void SendDrawItem(TestDialog& dialog)
{
    DRAWITEMSTRUCT item{};
    item.CtlID = CONTROL_DRAWN;
    item.hwndItem = dialog.GetControlById(CONTROL_DRAWN).GetHandle();
    SendMessageW(dialog.GetWindow().GetHandle(), WM_DRAWITEM, CONTROL_DRAWN, reinterpret_cast<LPARAM>(&item));
}

TEST(DialogBase, HooksSeeTheirMessagesAndShowAnswersTheResultCode)
{
    TestDialog dialog;
    dialog.resultCode = 42;
    std::vector<unsigned int> commands;
    dialog.onCommand = [&](TestDialog& open, unsigned int command)
    {
        commands.push_back(command);
        return LOWORD(command) == IDCANCEL && (open.Close(), true);
    };
    int const result = dialog.Run(
        [](TestDialog& open)
        {
            open.Post(WM_COMMAND, 0x1200000000 | MAKEWPARAM(CONTROL_EDIT, 0xABCD));
            PostMessageW(open.GetControlById(CONTROL_EDIT).GetHandle(), WM_KEYDOWN, VK_ESCAPE, 0);
        });
    EXPECT_EQ(result, 42);
    auto const count = [&commands](WORD id, WORD notification)
    { return std::count(commands.begin(), commands.end(), static_cast<unsigned int>(MAKELONG(id, notification))); };
    EXPECT_EQ(count(CONTROL_EDIT, 0xABCD), 1) << "only the low 32 bits count";
    EXPECT_EQ(count(IDCANCEL, BN_CLICKED), 1) << "Esc";
    EXPECT_FALSE(dialog.GetWindow().IsValid());
    EXPECT_THROW(dialog.Close(), InvalidStateException);
    EXPECT_THROW(dialog.RegisterMessageLoopFor(UI::Control(GetDesktopWindow()), {}), InvalidStateException);
    EXPECT_EQ(TestDialog().Run([](TestDialog& open) { open.Post(WM_CLOSE); }), 0) << "the cross, and open again";
}

TEST(DialogBase, OwnerIsTheForegroundWindowOfThisProcessElseTheActiveOne)
{
    auto const getOwner = []
    {
        HWND owner = nullptr;
        TestDialog().Run([&owner](TestDialog& dialog)
                         { owner = ::GetWindow(dialog.GetWindow().GetHandle(), GW_OWNER); });
        return owner;
    };
    HWND const window =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
    SetForegroundWindow(window);
    ASSERT_EQ(GetForegroundWindow(), window);
    EXPECT_EQ(getOwner(), window);
    SetForegroundWindow(GetDesktopWindow()); // another process's
    SetActiveWindow(window);
    HWND const active = GetActiveWindow();
    EXPECT_EQ(getOwner(), GetForegroundWindow() == window ? window : active);
    DestroyWindow(window);
}

TEST(DialogBase, FailingTemplatesThrowTheSystemsCode)
{
    EXPECT_THROW(TestDialog(DIALOG_BROKEN).Show(), Vek::Win32Exception);
    EXPECT_EQ("Error code: 1814", MessageOf<Vek::Win32Exception>([] { TestDialog(DIALOG_MISSING).Show(); }));
}

TEST(DialogBase, ShowOnAnOpenDialogThrowsAndNestedDialogsWork)
{
    EXPECT_THROW(TestDialog().Run([](TestDialog& dialog) { dialog.Show(); }), InvalidStateException);
    int inner = 0;
    TestDialog().Run([&inner](TestDialog&)
                     { inner = TestDialog().Run([](TestDialog& nested) { nested.resultCode = 9; }); });
    EXPECT_EQ(inner, 9);
}

TEST(DialogBase, DrawsByItsStrategies)
{
    int drawn = 0;
    TestDialog().Run(
        [&drawn](TestDialog& dialog)
        {
            SendDrawItem(dialog); // nobody's
            UI::Control const control = dialog.GetControlById(CONTROL_DRAWN);
            EXPECT_THROW(dialog.RegisterOwnerDrawStrategyFor(control, nullptr), Vek::ArgumentException);
            EXPECT_THROW(dialog.RegisterOwnerDrawStrategyFor({}, Drawing({})), InvalidStateException);
            dialog.RegisterOwnerDrawStrategyFor(control, Drawing([](auto&) { ADD_FAILURE() << "replaced"; }));
            auto const draw = [&drawn, handle = control.GetHandle()](DRAWITEMSTRUCT const& item)
            {
                EXPECT_EQ(item.hwndItem, handle);
                EXPECT_NE(FillRect(item.hDC, &item.rcItem, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH))), 0);
                ++drawn;
            };
            dialog.RegisterOwnerDrawStrategyFor(control, Drawing(draw));
            dialog.GetWindow().SetVisible(true);
            UpdateWindow(control.GetHandle());
        });
    EXPECT_GE(drawn, 1);
}

TEST(DialogBase, TheFirstExceptionClosesItAndIsRethrownByShow)
{
    int calls = 0;
    auto const fail = [&calls]
    {
        ++calls;
        throw std::runtime_error("meant");
    };
    std::function<void(TestDialog&)> const actions[] = {
        [&](TestDialog&) { fail(); },
        [&](TestDialog& dialog)
        {
            dialog.onCommand = [&](TestDialog&, unsigned int) { return fail(), true; };
            dialog.Post(WM_COMMAND, IDCANCEL);
        },
        [&](TestDialog& dialog)
        {
            UI::Control const edit = dialog.GetControlById(CONTROL_EDIT);
            dialog.RegisterMessageLoopFor(edit, [&](unsigned int message, unsigned long long, long long, long long&)
                                          { return message == WM_USER && (fail(), true); });
            for (int i = 0; i < 2; ++i)
                PostMessageW(edit.GetHandle(), WM_USER, 0, 0);
        },
        [&](TestDialog& dialog)
        {
            dialog.RegisterOwnerDrawStrategyFor(dialog.GetControlById(CONTROL_DRAWN), Drawing([&](auto&) { fail(); }));
            SendDrawItem(dialog);
            SendDrawItem(dialog);
            EXPECT_TRUE(dialog.GetWindow().IsValid());
        },
        [&](TestDialog& dialog)
        {
            dialog.Close();
            fail();
        },
    };
    for (auto const& action : actions)
    {
        SCOPED_TRACE(&action - actions);
        calls = 0;
        TestDialog dialog;
        EXPECT_THROW(dialog.Run(action), std::runtime_error);
        EXPECT_EQ(calls, 1) << "nothing is called after it";
        EXPECT_FALSE(dialog.GetWindow().IsValid());
        dialog.onCommand = TestDialog().onCommand;
        EXPECT_EQ(dialog.Run({}), 0) << "and can be shown again";
    }
}

TEST(DialogBase, DropsWhatIsRegisteredHoweverItCloses)
{
    std::function<void(TestDialog&)> const ways[] = {
        [](TestDialog& dialog) { dialog.Close(); },
        [](TestDialog& dialog) { dialog.GetWindow().Close(); },
        [](TestDialog& dialog) { SendMessageW(dialog.GetControlById(CONTROL_EDIT).GetHandle(), WM_USER, 0, 0); },
        SendDrawItem,
    };
    for (auto const& close : ways)
    {
        SCOPED_TRACE(&close - ways);
        auto const held = std::make_shared<int>(1);
        TestDialog dialog;
        dialog.Run(
            [&](TestDialog& open)
            {
                auto const closeFromWithin = [held, &open]
                {
                    open.Close();
                    EXPECT_GE(held.use_count(), 3) << "what runs is still there";
                };
                open.RegisterMessageLoopFor(
                    open.GetControlById(CONTROL_EDIT),
                    [closeFromWithin](unsigned int message, unsigned long long, long long, long long&)
                    { return message == WM_USER && (closeFromWithin(), false); });
                open.RegisterOwnerDrawStrategyFor(open.GetControlById(CONTROL_DRAWN),
                                                  Drawing([closeFromWithin](auto&) { closeFromWithin(); }));
                close(open);
            });
        EXPECT_EQ(held.use_count(), 1);
    }
}

/// The index of a new handle in the process's table of GDI objects.
int GetNextGdiIndex()
{
    HBRUSH const brush = CreateSolidBrush(RGB(1, 2, 3));
    EXPECT_NE(brush, nullptr);
    DeleteObject(brush);
    return LOWORD(reinterpret_cast<ULONG_PTR>(brush));
}

TEST(DialogBase, TwoThousandDialogsLoseNoHandle)
{
    auto const showOne = []
    {
        TestDialog().Run(
            [](TestDialog& dialog)
            {
                UI::Control edit = dialog.GetControlById(CONTROL_EDIT);
                HFONT const font = CreateFontW(-20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"DejaVu Sans");
                edit.SetFont(font);
                edit.GetRequiredHeightForFixedWidth(L"Zwei W\u00F6rter", 30);
                edit.SetFont(nullptr);
                DeleteObject(font);
                dialog.RegisterMessageLoopFor(edit, [](unsigned int, unsigned long long, long long, long long&)
                                              { return false; });
                dialog.RegisterOwnerDrawStrategyFor(dialog.GetControlById(CONTROL_DRAWN), Drawing([](auto&) {}));
                EXPECT_EQ(dialog.GetDPICorrected(96), dialog.GetWindow().GetDPI());
            });
    };
    bool const isQuick = std::getenv("UI_TEST_FEW_DIALOGS") != nullptr; // each closes slowly on a display
    for (int i = 0; i < (isQuick ? 3 : 500); ++i)
        showOne();
    int const before = GetNextGdiIndex();
    for (int i = 0; i < (isQuick ? 3 : 2000); ++i)
        showOne();
    int const after = GetNextGdiIndex();
    EXPECT_TRUE(isQuick || after == before) << before << " became " << after;
}

TEST(Control, ThirtyThousandMeasurementsSucceed)
{
    TestDialog().Run(
        [](TestDialog& dialog)
        {
            UI::Control const edit = dialog.GetControlById(CONTROL_EDIT);
            for (int i = 0; i < 30000; ++i)
                ASSERT_GT(edit.GetSingleLineSize(L"Betrag").GetWidth(), 0) << i;
        });
}

} // namespace
