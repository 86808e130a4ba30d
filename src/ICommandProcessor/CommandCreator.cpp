#include <ICommandProcessor/CommandCreator.h>

namespace Vek::Framework::ICommandProcessor::Native
{

CommandCreator::CommandCreator(int id, std::string const& name) : m_id(id), m_name(name)
{
}
CommandCreator::CommandCreator(CommandCreator const&) = default;
CommandCreator& CommandCreator::operator=(CommandCreator const&) = default;
CommandCreator::~CommandCreator() = default;

int CommandCreator::GetId() const noexcept
{
    return m_id;
}

std::string const& CommandCreator::GetName() const noexcept
{
    return m_name;
}

} // namespace Vek::Framework::ICommandProcessor::Native
