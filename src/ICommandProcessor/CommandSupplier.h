#pragma once

#include <VekApi.h>

namespace Vek::Framework::ICommandProcessor::Native
{

class CommandController;

/// A part of the program whose state a controller takes back and forth: it keeps its own states, and the controller
/// decides when it goes one back or one forth.
///
/// Lifetime: not owned. When it dies, its controller forgets it.
/// Copies:   belong to no controller; assignment leaves both where they are.
class VEK_API CommandSupplier
{
public:
    CommandSupplier() noexcept;
    CommandSupplier(CommandSupplier const& other) noexcept;
    CommandSupplier& operator=(CommandSupplier const& other) noexcept;
    virtual ~CommandSupplier();

    /// The controller that it was attached to. Throws InvalidStateException when there is none.
    CommandController& GetCommandController() const;

protected:
    friend class CommandController;

    /// Goes on to the state behind the present one. Either all or, by throwing, nothing; here NotImplementedException.
    virtual void RestoreNewState();
    /// Goes back to the state before the present one. Either all or, by throwing, nothing; here
    /// NotImplementedException.
    virtual void RestoreOldState();

private:
    CommandController* m_controller = nullptr;
};

} // namespace Vek::Framework::ICommandProcessor::Native
