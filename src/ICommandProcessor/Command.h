#pragma once

#include <ICommandProcessor/CommandResult.h>
#include <VekApi.h>

namespace Vek::Framework::ICommandProcessor::Native
{

/// Something that the program does for its user, known by a number. Made by a CommandCreator.
class VEK_API Command
{
public:
    Command(Command const& other);
    Command& operator=(Command const& other);
    virtual ~Command();

    int GetCommandId() const noexcept;

    /// Does it. What cannot be done for a reason that the user should read is a CommandResult::Error; here it throws
    /// NotImplementedException.
    virtual CommandResult Execute();

protected:
    explicit Command(int id) noexcept;

private:
    int m_commandId;
};

} // namespace Vek::Framework::ICommandProcessor::Native
