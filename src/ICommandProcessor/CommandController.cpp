#include <ICommandProcessor/CommandController.h>

#include <Exceptions/ArgumentException.h>
#include <ICommandProcessor/CommandSupplier.h>

#include <algorithm>

namespace Vek::Framework::ICommandProcessor::Native
{

CommandController::CommandController() noexcept = default;

CommandController::~CommandController()
{
    for (CommandSupplier* const supplier : m_suppliers)
        supplier->m_controller = nullptr;
}

void CommandController::Attach(CommandSupplier& supplier)
{
    if (supplier.m_controller == this)
        return;
    if (supplier.m_controller != nullptr)
        throw ArgumentException();
    OnAttach(supplier);
    m_suppliers.push_back(&supplier);
    supplier.m_controller = this;
}

void CommandController::Detach(CommandSupplier& supplier) noexcept
{
    if (supplier.m_controller != this)
        return;
    m_suppliers.erase(std::find(m_suppliers.begin(), m_suppliers.end(), &supplier));
    supplier.m_controller = nullptr;
    OnDetach(supplier);
}

bool CommandController::IsAttached(CommandSupplier const& supplier) const noexcept
{
    return std::find(m_suppliers.begin(), m_suppliers.end(), &supplier) != m_suppliers.end();
}

void CommandController::RestoreNewState(CommandSupplier& supplier)
{
    supplier.RestoreNewState();
}

void CommandController::RestoreOldState(CommandSupplier& supplier)
{
    supplier.RestoreOldState();
}

void CommandController::OnAttach(CommandSupplier&)
{
}

void CommandController::OnDetach(CommandSupplier const&) noexcept
{
}

} // namespace Vek::Framework::ICommandProcessor::Native
