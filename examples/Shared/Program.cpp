#include "Program.h"

#include "Console.h"
#include "Files.h"

#include <Utilities/ProcessHelper.h>

#include <iostream>

using Vek::Framework::Utilities::ProcessHelper;

namespace Example
{

int RunProgram(char const* name, char const* help,
               std::function<int(std::vector<std::wstring> const& arguments)> const& run)
{
    try
    {
        PrepareConsole();
        std::vector<std::wstring> const arguments = ProcessHelper::GetArguments();
        bool const isHelp = arguments.size() == 1 && arguments[0] == L"--help";
        if (isHelp)
            std::cout << help;
        int const exitCode = isHelp ? 0 : run(arguments);
        std::cout.flush();
        if (!std::cout)
            throw DocumentError("standard output does not take what is written");
        return exitCode;
    }
    catch (std::exception const& error)
    {
        std::cerr << name << ": " << error.what() << '\n';
        return 1;
    }
}

} // namespace Example
