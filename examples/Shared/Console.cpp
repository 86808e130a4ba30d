#include "Console.h"

#include <Utilities/WStringHelper.h>

#include <iostream>

#if defined(_WIN32)
#    include <fcntl.h>
#    include <io.h>
#    include <stdio.h>
#    include <windows.h>
#endif

using Vek::Framework::Utilities::WStringHelper;

namespace Example
{

void PrepareConsole()
{
#if defined(_WIN32)
    _setmode(_fileno(stdout), _O_BINARY);
    SetConsoleOutputCP(CP_UTF8);
#endif
}

void PrintLine(std::wstring const& text)
{
    std::cout << WStringHelper::GetUTF8FromUTF16(text) << '\n';
}

} // namespace Example
