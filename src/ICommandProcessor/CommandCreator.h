#pragma once

#include <ICommandProcessor/Command.h>
#include <VekApi.h>

#include <memory>
#include <string>

namespace Vek::Framework::ICommandProcessor::Native
{

/// Makes commands of one kind, which has a number and a name.
class VEK_API CommandCreator
{
public:
    CommandCreator(CommandCreator const& other);
    CommandCreator& operator=(CommandCreator const& other);
    virtual ~CommandCreator();

    /// A new command.
    virtual std::unique_ptr<Command> operator()() const = 0;

    int GetId() const noexcept;
    std::string const& GetName() const noexcept;

protected:
    CommandCreator(int id, std::string const& name);

private:
    int m_id;
    std::string m_name;
};

} // namespace Vek::Framework::ICommandProcessor::Native
