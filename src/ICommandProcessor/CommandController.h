#pragma once

#include <VekApi.h>

#include <vector>

namespace Vek::Framework::ICommandProcessor::Native
{

class CommandSupplier;

/// The base of what takes suppliers back and forth: knows the attached ones and has the right to restore their states.
/// When to do so is for the derived class to decide; CommandHistory is one.
///
/// Lifetime: suppliers are not owned. Whichever of the two dies first, the other forgets it.
class VEK_API CommandController
{
public:
    CommandController() noexcept;
    CommandController(CommandController const&) = delete;
    CommandController& operator=(CommandController const&) = delete;
    virtual ~CommandController();

    /// A second time is ignored. Throws ArgumentException when it is attached to another controller, and what OnAttach
    /// throws.
    void Attach(CommandSupplier& supplier);
    /// One that is not attached here is ignored.
    void Detach(CommandSupplier& supplier) noexcept;
    bool IsAttached(CommandSupplier const& supplier) const noexcept;

protected:
    static void RestoreNewState(CommandSupplier& supplier);
    static void RestoreOldState(CommandSupplier& supplier);

    /// A supplier is coming; throw to refuse it.
    virtual void OnAttach(CommandSupplier& supplier);
    /// A supplier has left, or is dying: only its address may be used.
    virtual void OnDetach(CommandSupplier const& supplier) noexcept;

private:
    std::vector<CommandSupplier*> m_suppliers;
};

} // namespace Vek::Framework::ICommandProcessor::Native
