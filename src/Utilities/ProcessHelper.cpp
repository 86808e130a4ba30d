#include <Utilities/ProcessHelper.h>

#include <Exceptions/InvalidStateException.h>
#include <Platform/Process.h>

namespace Vek::Framework::Utilities
{

std::wstring ProcessHelper::GetProcessStartDirectory()
{
    std::wstring const path = Platform::GetProgramPath();
    if (path.empty())
        throw InvalidStateException();
    return path.substr(0, path.rfind(Platform::GetPathSeparator()));
}

} // namespace Vek::Framework::Utilities
