#include <ICommandProcessor/CommandResult.h>

#include <utility>

namespace Vek::Framework::ICommandProcessor::Native
{

CommandResult::CommandResult(bool success, std::wstring message) noexcept
    : m_success(success),
      m_errorMessage(std::move(message))
{
}
CommandResult::CommandResult(CommandResult const&) = default;
CommandResult::CommandResult(CommandResult&&) noexcept = default;
CommandResult& CommandResult::operator=(CommandResult const&) = default;
CommandResult& CommandResult::operator=(CommandResult&&) noexcept = default;
CommandResult::~CommandResult() = default;

CommandResult const& CommandResult::Success()
{
    static CommandResult const& success = *new CommandResult(true, {}); // never destroyed: destructors may ask for it
    return success;
}

CommandResult CommandResult::Error(std::wstring message)
{
    return { false, std::move(message) };
}

bool CommandResult::IsSuccess() const noexcept
{
    return m_success;
}

std::wstring const& CommandResult::GetErrorMessage() const noexcept
{
    return m_errorMessage;
}

} // namespace Vek::Framework::ICommandProcessor::Native
