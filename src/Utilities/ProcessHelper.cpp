#include <Utilities/ProcessHelper.h>

#include <Exceptions/InvalidStateException.h>
#include <Platform/Process.h>

#include <utility>

namespace Vek::Framework::Utilities
{

std::wstring ProcessHelper::GetProcessStartDirectory()
{
    std::wstring const path = Platform::GetProgramPath();
    if (path.empty())
        throw InvalidStateException();
    return path.substr(0, path.rfind(Platform::GetPathSeparator()));
}

std::vector<std::wstring> ProcessHelper::GetArguments()
{
    std::optional<std::vector<std::wstring>> arguments = Platform::GetProgramArguments();
    if (!arguments)
        throw InvalidStateException();
    return std::move(*arguments);
}

} // namespace Vek::Framework::Utilities
