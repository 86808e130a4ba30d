#include <ICommandProcessor/CommandSupplier.h>

#include <Exceptions/InvalidStateException.h>
#include <Exceptions/NotImplementedException.h>
#include <ICommandProcessor/CommandController.h>

namespace Vek::Framework::ICommandProcessor::Native
{

CommandSupplier::CommandSupplier() noexcept = default;
CommandSupplier::CommandSupplier(CommandSupplier const&) noexcept
{
}

CommandSupplier& CommandSupplier::operator=(CommandSupplier const&) noexcept
{
    return *this;
}

CommandSupplier::~CommandSupplier()
{
    if (m_controller != nullptr)
        m_controller->Detach(*this);
}

CommandController& CommandSupplier::GetCommandController() const
{
    if (m_controller == nullptr)
        throw InvalidStateException();
    return *m_controller;
}

void CommandSupplier::RestoreNewState()
{
    throw NotImplementedException();
}

void CommandSupplier::RestoreOldState()
{
    throw NotImplementedException();
}

} // namespace Vek::Framework::ICommandProcessor::Native
