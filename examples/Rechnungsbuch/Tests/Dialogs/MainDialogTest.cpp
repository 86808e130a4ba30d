// The program's window and its dialogs, used as a user does, by keys and commands.

#include "DialogScript.h"

#include "BookSession.h"
#include "MainDialog.h"
#include "Resources.h"

#include <Utilities/MultiLogger.h>

#include <gtest/gtest.h>

#include "Utilities/TemporaryFolder.h"

namespace Tests
{

namespace
{

using namespace Invoicing;
using Script = DialogScript;
using Step = DialogScript::Step;

/// The sample in the main dialog.
class MainDialogTest : public testing::Test
{
protected:
    MainDialogTest() { m_session.StartWithSample(m_today); }

    void Run(std::vector<Step> steps)
    {
        Dialogs::MainDialog dialog(m_session, m_today);
        DialogScript::Run([&dialog] { dialog.Show(); }, std::move(steps));
    }

    static Step ExpectCount(LRESULT count)
    {
        return [count](HWND front)
        { EXPECT_EQ(SendDlgItemMessageW(front, CONTROL_INVOICES, LB_GETCOUNT, 0, 0), count); };
    }

    static Step ExpectSelected(int editId, DWORD from, DWORD to)
    {
        return [=](HWND front)
        {
            HWND const edit = GetDlgItem(front, editId);
            EXPECT_EQ(GetFocus(), edit);
            EXPECT_EQ(SendMessageW(edit, EM_GETSEL, 0, 0), MAKELONG(from, to));
        };
    }

    std::vector<Invoice> const& GetInvoices() const { return m_session.GetBook().GetInvoices(); }

    VekSysBase::VekDateEx const m_today{ 31, 3, 2025 };
    Vek::Framework::Utilities::MultiLogger m_log;
    BookSession m_session{ m_log };
};

TEST_F(MainDialogTest, FiltersTheSampleAndEndsByEsc)
{
    auto const count = static_cast<LRESULT>(GetInvoices().size());
    Run({
        ExpectCount(count),
        Script::Expect(std::to_wstring(count) + L" Rechnungen: netto "),
        Script::Type(CONTROL_FILTER, L"Kunde Huber"),
        ExpectCount(3),
        Script::Expect(L"3 von " + std::to_wstring(count)),
        Script::Type(CONTROL_FILTER, L"Betrag >> 3"),
        ExpectCount(3), // until the filter is right again
        Script::Expect(L"Stelle 9: "),
        Script::Key(CONTROL_FILTER, VK_RETURN),
        ExpectSelected(CONTROL_FILTER, 8, 9),
        Script::Key(CONTROL_FILTER, VK_DELETE), // of the text; all invoices stay
        ExpectCount(count),
        Script::Key(CONTROL_FILTER, VK_ESCAPE),
        ExpectCount(count),
        Script::Key(CONTROL_FILTER, VK_ESCAPE),
    });
    Run({
        Script::Type(CONTROL_FILTER, L"offen"),
        [](HWND front) { PostMessageW(front, WM_CLOSE, 0, 0); }, // whatever the filter
    });
    EXPECT_TRUE(m_session.IsSaved());
}

TEST_F(MainDialogTest, MarksAsPaidAndTakesItBack)
{
    std::size_t const last = GetInvoices().size() - 1;
    ASSERT_FALSE(GetInvoices()[last].IsPaid());
    Run({
        Script::Select(CONTROL_INVOICES, static_cast<int>(last)),
        Script::CtrlKey(CONTROL_INVOICES, L'B'),
        Script::Type(CONTROL_ANSWER, L"31.2.2025"),
        Script::Key(CONTROL_ANSWER, VK_RETURN),
        ExpectSelected(CONTROL_ANSWER, 0, 1), // the day is wrong
        Script::Type(CONTROL_ANSWER, L"31.3.2025"),
        Script::Key(CONTROL_ANSWER, VK_RETURN),
        [this, last](HWND) { EXPECT_TRUE(GetInvoices()[last].IsPaid()); },
        [](HWND front)
        {
            wchar_t text[200]{};
            GetMenuStringW(GetMenu(front), COMMAND_UNDO, text, 200, MF_BYCOMMAND);
            EXPECT_TRUE(std::wstring(text).starts_with(L"&R\u00FCckg\u00E4ngig: Rechnung 2025-010 ")) << text;
        },
        Script::CtrlKey(CONTROL_FILTER, L'Z'), // of the filter's text
        [this, last](HWND) { EXPECT_TRUE(GetInvoices()[last].IsPaid()); },
        Script::CtrlKey(CONTROL_INVOICES, L'Z'),
        [this, last](HWND) { EXPECT_FALSE(GetInvoices()[last].IsPaid()); },
        Script::Key(CONTROL_INVOICES, VK_ESCAPE),
    });
}

std::string ReadFile(std::wstring const& path)
{
    std::ifstream file(path.c_str(), std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

TEST_F(MainDialogTest, AFileThatIsHeldLosesNothing)
{
    TemporaryFolder const folder;
    std::wstring const path = folder.At(L"B\u00FCcher.xml");
    std::wstring message;
    ASSERT_TRUE(m_session.TrySave(path, message));
    std::string const before = ReadFile(path);
    std::size_t const count = GetInvoices().size();
    HANDLE const held = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    Run({
        Script::Key(CONTROL_INVOICES, VK_DELETE),
        Script::Expect(L"B\u00FCcher.xml *"),
        Script::CtrlKey(CONTROL_INVOICES, L'S'),
        Script::Expect(L"B\u00FCcher.xml"), // the message
        Script::Command(IDOK),
        Script::Key(CONTROL_INVOICES, VK_ESCAPE),
        Script::Expect(L"Sollen die \u00C4nderungen an \u201EB\u00FCcher.xml\u201C gespeichert werden?"),
        Script::Command(IDCANCEL),
        ExpectCount(static_cast<LRESULT>(count - 1)),
        [&](HWND)
        {
            EXPECT_FALSE(m_session.IsSaved());
            CloseHandle(held);
            EXPECT_EQ(ReadFile(path), before);
        },
        Script::CtrlKey(CONTROL_FILTER, L'S'),
        [this](HWND) { EXPECT_TRUE(m_session.IsSaved()); },
        Script::Key(CONTROL_INVOICES, VK_ESCAPE),
    });
    DocumentFault fault;
    ASSERT_TRUE(m_session.TryOpen(path, fault));
    EXPECT_EQ(GetInvoices().size(), count - 1);
}

TEST_F(MainDialogTest, AnInvoiceIsMadeByKeys)
{
    std::size_t const count = GetInvoices().size();
    Run({
        Script::Key(CONTROL_INVOICES, VK_INSERT),
        Script::Type(CONTROL_CUSTOMER, L"\u00D6lm\u00FChle Wei\u00DF"),
        Script::Type(CONTROL_LINE_TEXT, L"K\u00FCrbiskern\u00F6l"),
        Script::Type(CONTROL_LINE_NET, L"1.2345,00"),
        Script::Command(CONTROL_LINE_ADD),
        Script::Type(CONTROL_LINE_TEXT, L"Glas"),
        Script::Type(CONTROL_LINE_NET, L"10"),
        Script::Key(CONTROL_LINE_NET, VK_RETURN),
        [](HWND front)
        {
            EXPECT_EQ(GetFocus(), GetDlgItem(front, CONTROL_LINE_NET));
            EXPECT_EQ(SendDlgItemMessageW(front, CONTROL_LINES, LB_GETCURSEL, 0, 0), 0) << "the line with the fault";
        },
        Script::Type(CONTROL_LINE_NET, L"1.234,00"),
        Script::Expect(L"netto 1.244,00 + Steuer 248,80 = brutto 1.492,80"),
        Script::Key(CONTROL_LINE_NET, VK_RETURN),
        Script::Expect(std::to_wstring(count + 1) + L" Rechnungen"),
        Script::Command(IDCANCEL),
        Script::Command(IDNO),
    });
    ASSERT_EQ(GetInvoices().size(), count + 1);
    EXPECT_EQ(GetInvoices().back().customer, L"\u00D6lm\u00FChle Wei\u00DF");
    EXPECT_EQ(GetInvoices().back().lines.size(), 2u);
}

TEST_F(MainDialogTest, TemplatesChangeWithOkOnly)
{
    auto const getMargin = [this] { return m_session.GetTemplates().Get(L"Standard").margin; };
    Run({
        Script::Command(COMMAND_TEMPLATES),
        Script::Type(CONTROL_MARGIN, L"12.5"),
        Script::Key(CONTROL_MARGIN, VK_RETURN),
        ExpectSelected(CONTROL_MARGIN, 2, 3),
        Script::Type(CONTROL_MARGIN, L"12,5"),
        Script::Key(CONTROL_MARGIN, VK_ESCAPE),
        Script::Expect(L"verworfen werden?"),
        Script::Command(IDNO),
        [getMargin](HWND) { EXPECT_EQ(getMargin(), 20); },
        Script::Key(CONTROL_MARGIN, VK_RETURN),
        [getMargin](HWND) { EXPECT_EQ(getMargin() * 10, 125); },
        Script::Key(CONTROL_INVOICES, VK_ESCAPE),
        Script::Expect(L"gespeichert werden?"),
        Script::Command(IDNO),
    });
}

} // namespace

} // namespace Tests
