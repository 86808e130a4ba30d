// The dialogs of the system, answered by posted messages.

#include <Utilities/UI/DocumentFault.h>
#include <Utilities/UI/FileDialogs.h>

#include <windows.h>

namespace
{

namespace UI = Vek::Framework::Utilities::UI;

/// What a reader's error has.
struct FakeError
{
    int GetErrorCode() const { return 1; }
    int GetLine() const { return 3; }
    int GetColumn() const { return 17; }
    char const* GetDescription() const { return "Ung\374ltige Syntax."; }
    std::string GetExpectedSymbol() const { return "</stra\337e>"; }
};

TEST(DocumentFault, TellsThePlaceInGerman)
{
    UI::DocumentFault fault = UI::ToDocumentFault(FakeError());
    EXPECT_EQ(
        UI::FormatDocumentFault(L"a.xml", fault),
        L"\u201Ea.xml\u201C kann nicht gelesen werden.\n\nZeile 3, Spalte 17:\nUng\u00FCltige Syntax. (Fehler 1)\n"
        L"Erwartet: </stra\u00DFe>");
    fault.line = -1;
    fault.expected.clear();
    EXPECT_EQ(UI::FormatDocumentFault(L"a.xml", fault),
              L"\u201Ea.xml\u201C kann nicht gelesen werden.\n\nUng\u00FCltige Syntax. (Fehler 1)");
}

WPARAM s_command = 0;
int s_count = 0;

BOOL CALLBACK AnswerWindow(HWND window, LPARAM)
{
    wchar_t name[16]{};
    GetClassNameW(window, name, 16);
    if (std::wstring(name) == L"#32770" && IsWindowVisible(window) && ++s_count < 50)
        PostMessageW(window, WM_COMMAND, s_command, 0);
    return TRUE;
}

void CALLBACK AnswerAll(HWND, UINT, UINT_PTR, DWORD)
{
    EnumThreadWindows(GetCurrentThreadId(), AnswerWindow, 0);
}

/// Answers every dialog of this thread that appears with a command; says how many there were.
int AnswerWith(WPARAM command, std::function<void()> const& ask)
{
    s_command = command;
    s_count = 0;
    UINT_PTR const timer = SetTimer(nullptr, 0, 20, AnswerAll);
    ask();
    KillTimer(nullptr, timer);
    return s_count;
}

TEST(DocumentFault, WaitsForTheUser)
{
    auto const show = [] { UI::ShowDocumentFault({}, L"Titel", L"a.xml", UI::ToDocumentFault(FakeError())); };
    EXPECT_GE(AnswerWith(IDOK, show), 1);
}

TEST(FileDialogs, AnswerTheChosenPathOrNothing)
{
    UI::FileQuestion question{ L"\u00D6ffnen", { { L"Rechnungen (*.xml)", L"*.xml" } }, L"xml", L"neu" };
    Vek::Framework::Utilities::Nullable<std::wstring> path;
    AnswerWith(IDOK, [&] { path = UI::AskForFileToSave({}, question); });
    ASSERT_TRUE(path.HasValue());
    EXPECT_TRUE(path.GetValue().ends_with(L"\\neu.xml") && path.GetValue().substr(1, 2) == L":\\");
    EXPECT_GE(AnswerWith(IDCANCEL, [&] { path = UI::AskForFileToSave({}, question); }), 1);
    EXPECT_FALSE(path.HasValue());
    question.path = L"no<such>name";
    EXPECT_GE(AnswerWith(IDCANCEL, [&] { path = UI::AskForFileToOpen({}, question); }), 1);
    EXPECT_FALSE(path.HasValue());
}

} // namespace
