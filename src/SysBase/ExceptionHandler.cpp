#include <SysBase/ExceptionHandler.h>

#include <Platform/FaultGuard.h>

namespace VekSysBase
{

ExceptionHandler& ExceptionHandler::operator=(ExceptionHandler const&) noexcept = default;
ExceptionHandler& ExceptionHandler::operator=(ExceptionHandler&&) noexcept = default;

bool ExceptionHandler::ExecuteSafe(std::function<void()> const& action, std::wstring const&, std::wstring const&,
                                   std::wstring const&)
{
    return !action || Vek::Platform::RunGuarded(action);
}

} // namespace VekSysBase
