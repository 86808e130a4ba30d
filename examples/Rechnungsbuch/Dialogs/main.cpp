// Rechnungsbuch.exe [FILE] [--date D]: the book in FILE, or one to try things out with. Overdue is what was to be paid
// before the day D, such as 15.3.2024; without it, before today.

#include "BookSession.h"
#include "FieldInput.h"
#include "FileTarget.h"
#include "MainDialog.h"
#include "Messages.h"
#include "ProgramLog.h"

#include <SysBase/Heute.h>
#include <Utilities/FileHelper.h>
#include <Utilities/ProcessHelper.h>

#include <cstdlib>
#include <exception>

#include <commctrl.h>
#include <windows.h>

namespace
{

using namespace Invoicing;
using namespace Invoicing::Dialogs;
using Vek::Framework::Utilities::Logger;

struct CommandLine
{
    std::wstring path;
    VekSysBase::VekDateEx today = VekSysBase::Heute();
};

/// False, with the fault told, for arguments that are none.
bool TryReadCommandLine(CommandLine& commandLine)
{
    std::vector<std::wstring> const arguments = Vek::Framework::Utilities::ProcessHelper::GetArguments();
    for (std::size_t i = 0; i < arguments.size(); ++i)
    {
        InputFault fault{ 0, L"Aufruf: Rechnungsbuch.exe [DATEI] [--date TAG]" };
        bool const isDate = arguments[i] == L"--date" && i + 1 < arguments.size();
        if (isDate ? !TryReadDate(arguments[++i], commandLine.today, fault)
                   : arguments[i].starts_with(L"--") || !commandLine.path.empty())
            return ShowFault({}, fault.text), false;
        if (!isDate)
            commandLine.path = arguments[i];
    }
    return true;
}

/// In the user's own folder for what programs keep on this computer.
std::wstring GetLogPath()
{
    wchar_t const* const folder = _wgetenv(L"LOCALAPPDATA");
    return (folder == nullptr ? std::wstring() : std::wstring(folder) + L"\\") + L"Rechnungsbuch.log";
}

void Run(CommandLine const& commandLine, Logger& log)
{
    BookSession session(log);
    DocumentFault fault;
    if (commandLine.path.empty())
        session.StartWithSample(commandLine.today);
    else if (!session.TryOpen(commandLine.path, fault))
        ShowFault({}, FormatDocumentFault(GetFileName(commandLine.path), fault));
    MainDialog(session, commandLine.today).Show();
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int)
{
    InitCommonControls();
    try
    {
        CommandLine commandLine;
        if (!TryReadCommandLine(commandLine))
            return EXIT_FAILURE;
        ProgramLog log(GetLogPath());
        Run(commandLine, log.GetLogger());
        log.LogTimes();
        return EXIT_SUCCESS;
    }
    catch (std::exception const& exception)
    {
        ShowException({}, exception.what());
        return EXIT_FAILURE;
    }
}
