// Controls and windows of a real dialog: read, written, moved and measured.

#include <Utilities/IntRectangleSets.h>
#include <Utilities/UI/DeviceContext.h>
#include <Utilities/UI/EditInput.h>

#include "TestDialog.h"

namespace
{

using namespace Vek::Framework::Utilities;
using Vek::InvalidStateException;

TEST(Control, NothingGoesWithoutAHandle)
{
    UI::Window window;
    EXPECT_FALSE(window.IsValid());
    EXPECT_THROW(window.GetHandle(), InvalidStateException);
    EXPECT_THROW(window.GetText(), InvalidStateException);
    EXPECT_THROW(window.GetSingleLineSize(L"x"), InvalidStateException);
    EXPECT_THROW(window.GetDPI(), InvalidStateException);
}

TEST(Control, IsReadAndWritten)
{
    TestDialog().Run(
        [](TestDialog& dialog)
        {
            UI::Control edit = dialog.GetControlById(CONTROL_EDIT);
            EXPECT_EQ(dialog.GetControlById(CONTROL_LABEL).GetText(), L"Gr\u00F6\u00DFe");
            EXPECT_EQ(edit.GetText(), L"");
            edit.SetText(L"\u00DCber \xD83D\xDE00");
            EXPECT_EQ(edit.GetText(), L"\u00DCber \xD83D\xDE00");

            HFONT const font = CreateFontW(-30, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, 0, 0, L"DejaVu Sans");
            IntSize const before = edit.GetSingleLineSize(L"Text");
            edit.SetFont(font);
            EXPECT_EQ(edit.GetFont(), font);
            EXPECT_GT(edit.GetSingleLineSize(L"Text").GetHeight(), before.GetHeight());
            edit.SetFont(nullptr);
            DeleteObject(font);

            edit.SetEnabled(false);
            EXPECT_FALSE(IsWindowEnabled(edit.GetHandle()));
            for (bool const isVisible : { false, true })
            {
                edit.SetVisible(isVisible);
                EXPECT_EQ((GetWindowLongPtrW(edit.GetHandle(), GWL_STYLE) & WS_VISIBLE) != 0, isVisible);
            }

            edit.SetBounds(IntRectangle::FromPointAndSize(11, 13, 70, 20));
            EXPECT_EQ(edit.GetBoundsInParent(), IntRectangle::FromPointAndSize(11, 13, 70, 20));
            POINT origin{ 11, 13 };
            ClientToScreen(dialog.GetWindow().GetHandle(), &origin);
            EXPECT_EQ(edit.GetBounds(), IntRectangle::FromPointAndSize(origin.x, origin.y, 70, 20));
            EXPECT_EQ(dialog.GetWindow().GetBoundsInParent(), dialog.GetWindow().GetBounds());

            dialog.GetWindow().SetVisible(true); // else there is nothing to paint
            ValidateRect(edit.GetHandle(), nullptr);
            edit.Redraw();
            EXPECT_TRUE(GetUpdateRect(edit.GetHandle(), nullptr, FALSE));
        });
}

TEST(Control, MeasuresText)
{
    TestDialog().Run(
        [](TestDialog& dialog)
        {
            UI::Control const label = dialog.GetControlById(CONTROL_LABEL);
            std::wstring const text = L"Der Betrag ist bis zum Monatsende auf das angegebene Konto zu \u00FCberweisen.";
            IntSize const line = label.GetSingleLineSize(text);
            UI::DeviceContext const context(label.GetHandle());
            HGDIOBJ const former = SelectObject(context, label.GetFont());
            SIZE expected{};
            GetTextExtentPoint32W(context, L"Betrag", 6, &expected);
            SelectObject(context, former);
            EXPECT_EQ(label.GetSingleLineSize(L"Betrag"), IntSize(expected.cx, expected.cy));
            int previous = line.GetHeight();
            EXPECT_EQ(label.GetRequiredHeightForFixedWidth(text, line.GetWidth() + 4), previous);
            EXPECT_EQ(label.GetRequiredHeightForFixedWidth(text, line.GetWidth() + 3), 2 * previous) << "the margin";
            for (int width = line.GetWidth() + 4; width > -20; --width)
            {
                int const height = label.GetRequiredHeightForFixedWidth(text, width);
                ASSERT_GE(height, previous) << width;
                ASSERT_EQ(height % line.GetHeight(), 0);
                previous = height;
            }
            EXPECT_EQ(label.GetRequiredHeightForFixedWidth(text, (-2147483647 - 1)), previous);
            EXPECT_GE(label.GetRequiredHeightForFixedWidth(L"\n\n\na\xD83D\xDE00 \xD83D\n", 1000),
                      5 * line.GetHeight());
            EXPECT_EQ(label.GetTextHeight(L"", 10), line.GetHeight());
            EXPECT_THROW(label.GetSingleLineSize(L""), InvalidStateException);
            EXPECT_THROW(label.GetRequiredHeightForFixedWidth(L"", 10), InvalidStateException);
        });
}

TEST(Window, TakesSizesAndCentres)
{
    TestDialog().Run(
        [](TestDialog& dialog)
        {
            UI::Window& window = dialog.GetWindow();
            int const border = window.GetNonClientAreaHeight();
            EXPECT_GT(border, 0);
            window.SetSize({ 300, 200 });
            EXPECT_EQ(window.GetBounds().GetSize(), IntSize(300, 200 + border));
            window.SetClientSize({ 301, 203 });
            RECT client{};
            GetClientRect(window.GetHandle(), &client);
            EXPECT_EQ(IntSize(client.right, client.bottom), IntSize(301, 203));

            IntRectangle const screen = UI::Control(GetDesktopWindow()).GetBounds();
            HWND const owner = GetParent(window.GetHandle());
            IntRectangle const reference = owner == nullptr ? screen : UI::Control(owner).GetBounds();
            window.CenterOnScreen({ 121, 61 });
            EXPECT_EQ(window.GetBounds(), IntRectangle::FromCenterAndSize(reference.GetCenter(), { 121, 61 + border }));
            window.CenterInWorkArea({ 100, 50 });
            EXPECT_EQ(window.GetBounds(), CenterIn(window.GetBounds(), reference));
        });
}

TEST(Window, CentresInTheWorkAreaAlsoWhereTheOwnerIsAtTheEdge)
{
    UI::Window owner(
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, -400, -300, 200, 100, nullptr, nullptr, nullptr, nullptr));
    UI::Window window(
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 20, 20, owner.GetHandle(), nullptr, nullptr, nullptr));
    window.CenterOnScreen({ 50, 40 });
    EXPECT_EQ(window.GetBounds().GetTopLeft(), IntPoint(-325, -270));
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    ASSERT_TRUE(GetMonitorInfoW(MonitorFromWindow(owner.GetHandle(), MONITOR_DEFAULTTONEAREST), &monitor));
    window.CenterInWorkArea({ 50, 40 });
    EXPECT_EQ(window.GetBounds(), IntRectangle::FromPointAndSize(monitor.rcWork.left, monitor.rcWork.top, 50, 40));
    owner.SetBounds(IntRectangle::FromPointAndSize(monitor.rcWork.right - 10, monitor.rcWork.bottom - 10, 200, 100));
    window.CenterInWorkArea({ 50, 40 });
    EXPECT_EQ(window.GetBounds().GetBottomRight(), IntPoint(monitor.rcWork.right, monitor.rcWork.bottom));
    DestroyWindow(owner.GetHandle());
}

// The driver is asked by run-ui-tests.sh for one value after the other.
TEST(Window, DPIIsThatOfTheSystem)
{
    char const* const expected = std::getenv("UI_TEST_DPI");
    int const dpi = expected == nullptr ? 96 : std::atoi(expected);
    TestDialog dialog;
    EXPECT_THROW(dialog.GetDPICorrected(1), InvalidStateException);
    dialog.Run(
        [dpi](TestDialog& open)
        {
            EXPECT_EQ(open.GetWindow().GetDPI(), dpi);
            for (int value = -1000; value <= 1000; ++value)
            {
                ASSERT_GE(open.GetDPICorrected(value) * 96, value * dpi);
                ASSERT_LT((open.GetDPICorrected(value) - 1) * 96, value * dpi);
            }
        });
}

TEST(EditInput, SelectsTheFirstBadCharacter)
{
    Rows<wchar_t const*, DWORD, DWORD> const rows = {
        { L"1.234,5x0", 7, 8 },
        { L"12,", 3, 3 },           // ends too early
        { L"1\xD83D\xDE00", 1, 3 }, // a pair
    };
    TestDialog().Run(
        [&rows](TestDialog& dialog)
        {
            dialog.GetWindow().SetVisible(true); // only then controls take the focus
            UI::Control edit = dialog.GetControlById(CONTROL_EDIT);
            Decimal amount = 7;
            for (auto const& [text, from, to] : rows)
            {
                SCOPED_TRACE(text);
                SetFocus(GetDlgItem(dialog.GetWindow().GetHandle(), IDOK));
                edit.SetText(text);
                AmountFault fault;
                EXPECT_FALSE(UI::TryGetAmount(edit, amount, fault));
                EXPECT_EQ(fault.position, from);
                EXPECT_EQ(GetFocus(), edit.GetHandle());
                EXPECT_EQ(SendMessageW(edit.GetHandle(), EM_GETSEL, 0, 0), MAKELRESULT(from, to));
                EXPECT_EQ(amount, 7);
            }
            DateTime date = DateTime::FromComponents(2024, 3, 5, 0, 0, 0);
            DateTime const before = date;
            edit.SetText(L"31.2.2024");
            EXPECT_FALSE(UI::TryGetDate(edit, date));
            EXPECT_TRUE(date == before);
            edit.SetText(L"5.3.2024");
            EXPECT_TRUE(UI::TryGetDate(edit, date));
            EXPECT_TRUE(date == before);
            edit.SetText(L"-1.234,50");
            EXPECT_TRUE(UI::TryGetAmount(edit, amount));
            EXPECT_EQ(amount.ToString(L',', {}), L"-1234,50");
        });
}

} // namespace
