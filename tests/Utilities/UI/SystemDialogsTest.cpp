// The dialogs of the system, answered by posted messages.

#include <Utilities/UI/DocumentFault.h>
#include <Utilities/UI/FileDialogs.h>

#include <gtest/gtest.h>

#include <windows.h>

namespace Tests
{

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

/// Answers every dialog of this thread that appears with a command; says how many there were.
class Answerer
{
public:
    explicit Answerer(WPARAM command)
    {
        s_command = command;
        s_count = 0;
        s_timer = SetTimer(nullptr, 0, 20, Answer);
    }

    ~Answerer() { KillTimer(nullptr, s_timer); }

    int GetCount() const { return s_count; }

private:
    static void CALLBACK Answer(HWND, UINT, UINT_PTR, DWORD)
    {
        EnumThreadWindows(
            GetCurrentThreadId(),
            [](HWND window, LPARAM) -> BOOL
            {
                wchar_t name[16]{};
                GetClassNameW(window, name, 16);
                if (std::wstring(name) == L"#32770" && IsWindowVisible(window) && ++s_count < 50)
                    PostMessageW(window, WM_COMMAND, s_command, 0);
                return TRUE;
            },
            0);
    }

    static WPARAM s_command;
    static int s_count;
    static UINT_PTR s_timer;
};

WPARAM Answerer::s_command = 0;
int Answerer::s_count = 0;
UINT_PTR Answerer::s_timer = 0;

TEST(DocumentFault, WaitsForTheUser)
{
    Answerer const user(IDOK);
    UI::ShowDocumentFault({}, L"Titel", L"a.xml", UI::ToDocumentFault(FakeError()));
    EXPECT_GE(user.GetCount(), 1);
}

TEST(FileDialogs, AnswerTheChosenPathOrNothing)
{
    UI::FileQuestion question{ L"\u00D6ffnen", { { L"Rechnungen (*.xml)", L"*.xml" } }, L"xml", L"neu" };
    {
        Answerer const user(IDOK);
        auto const path = UI::AskForFileToSave({}, question);
        ASSERT_TRUE(path.HasValue());
        std::wstring const chosen = path.GetValue();
        EXPECT_EQ(chosen.substr(chosen.find_last_of(L'\\') + 1), L"neu.xml");
        EXPECT_EQ(chosen.substr(1, 2), L":\\");
    }
    Answerer const user(IDCANCEL);
    EXPECT_FALSE(UI::AskForFileToSave({}, question).HasValue());
    question.path = L"no<such>name";
    EXPECT_FALSE(UI::AskForFileToOpen({}, question).HasValue());
    EXPECT_GE(user.GetCount(), 2);
}

} // namespace

} // namespace Tests
