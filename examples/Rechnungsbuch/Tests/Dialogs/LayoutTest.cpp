// What holds for every dialog at every resolution: texts fit, nothing lies upon another or outside, letters are unique.

#include "DialogScript.h"

#include "BookSession.h"
#include "InvoiceDialog.h"
#include "MainDialog.h"
#include "QuestionDialog.h"
#include "Resources.h"
#include "TemplatesDialog.h"

#include <Utilities/IntRectangleSets.h>
#include <Utilities/MultiLogger.h>
#include <Utilities/UI/Window.h>

#include <gtest/gtest.h>

#include <cwctype>

namespace Tests
{

namespace
{

using namespace Invoicing;
using namespace Vek::Framework::Utilities;

struct Piece
{
    UI::Control control;
    std::wstring text;
    bool isLabelled; // shows its text as a label or a button does
};

BOOL CALLBACK AddPiece(HWND window, LPARAM pieces)
{
    wchar_t name[16]{};
    GetClassNameW(window, name, 16);
    bool const isLabelled = std::wstring(name) == L"Static" || std::wstring(name) == L"Button";
    UI::Control const control(window);
    if (IsWindowVisible(window))
        reinterpret_cast<std::vector<Piece>*>(pieces)->push_back({ control, control.GetText(), isLabelled });
    return TRUE;
}

/// The letters to press with Alt, in the labels, on the buttons and in the menu bar.
std::wstring GetLetters(HWND window, std::vector<Piece> const& pieces)
{
    std::vector<std::wstring> texts;
    for (Piece const& piece : pieces)
        if (piece.isLabelled)
            texts.push_back(piece.text);
    HMENU const menu = GetMenu(window);
    for (int i = 0; menu != nullptr && i < GetMenuItemCount(menu); ++i)
    {
        wchar_t text[100]{};
        GetMenuStringW(menu, static_cast<UINT>(i), text, 100, MF_BYPOSITION);
        texts.push_back(text);
    }
    std::wstring letters;
    for (std::wstring const& text : texts)
        if (std::size_t const mark = text.find(L'&'); mark != std::wstring::npos)
            letters += static_cast<wchar_t>(std::towlower(text[mark + 1]));
    std::sort(letters.begin(), letters.end());
    return letters;
}

void ExpectGoodLayout(HWND window)
{
    RECT area{};
    GetClientRect(window, &area);
    IntRectangle const inside = IntRectangle::FromCornerPoints(0, 0, area.right, area.bottom);
    std::vector<Piece> pieces;
    EnumChildWindows(window, AddPiece, reinterpret_cast<LPARAM>(&pieces));
    ASSERT_GE(pieces.size(), 5u);
    for (Piece const& piece : pieces)
    {
        SCOPED_TRACE(testing::PrintToString(piece.text) + " " +
                     std::to_string(GetDlgCtrlID(piece.control.GetHandle())));
        IntRectangle const bounds = piece.control.GetBoundsInParent();
        EXPECT_TRUE(inside.Contains(bounds.GetTopLeft()) && inside.Contains(bounds.GetBottomRight()));
        if (piece.isLabelled && !piece.text.empty())
        {
            std::wstring text = piece.text;
            text.erase(std::remove(text.begin(), text.end(), L'&'), text.end());
            IntSize const size = piece.control.GetSingleLineSize(text);
            EXPECT_LE(size.GetWidth(), bounds.GetWidth());
            EXPECT_LE(size.GetHeight(), bounds.GetHeight());
        }
        for (Piece const& other : pieces)
            if (&other != &piece)
            {
                auto const both = Intersect(bounds, other.control.GetBoundsInParent());
                EXPECT_TRUE(!both.HasValue() || both.GetValue().GetWidth() == 0 || both.GetValue().GetHeight() == 0)
                    << testing::PrintToString(other.text);
            }
    }
    std::wstring const letters = GetLetters(window, pieces);
    EXPECT_EQ(std::adjacent_find(letters.begin(), letters.end()), letters.end()) << testing::PrintToString(letters);
}

TEST(Dialogs, LayoutIsGoodAtThisDPI)
{
    MultiLogger log;
    BookSession session(log);
    VekSysBase::VekDateEx const today(31, 3, 2025);
    session.StartWithSample(today);
    InvoiceBook const& book = session.GetBook();
    Invoice const& invoice = book.GetInvoices().front();
    Dialogs::MainDialog main(session, today);
    Dialogs::InvoiceDialog edit(book, ToDraft(invoice), invoice.number);
    Dialogs::TemplatesDialog templates(session.GetTemplates());
    Dialogs::QuestionDialog question(L"Titel", L"&Antwort:", {}, [](auto&, auto&) { return true; });
    std::function<void()> const shows[] = {
        [&] { main.Show(); },
        [&] { edit.Ask(); },
        [&] { templates.Edit(); },
        [&] { question.Ask(); },
    };
    for (auto const& show : shows)
    {
        SCOPED_TRACE(&show - shows);
        DialogScript::Run(show, { ExpectGoodLayout, DialogScript::Command(IDCANCEL) });
    }
}

} // namespace

} // namespace Tests
