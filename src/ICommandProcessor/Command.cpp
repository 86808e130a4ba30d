#include <ICommandProcessor/Command.h>

#include <Exceptions/NotImplementedException.h>

namespace Vek::Framework::ICommandProcessor::Native
{

Command::Command(int id) noexcept : m_commandId(id)
{
}
Command::Command(Command const&) = default;
Command& Command::operator=(Command const&) = default;
Command::~Command() = default;

int Command::GetCommandId() const noexcept
{
    return m_commandId;
}

CommandResult Command::Execute()
{
    throw NotImplementedException();
}

} // namespace Vek::Framework::ICommandProcessor::Native
