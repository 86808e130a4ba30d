#include <ICommandProcessor/CommandCreatorRegistry.h>

#include <Exceptions/ArgumentException.h>

#include <stdexcept>
#include <utility>

namespace Vek::Framework::ICommandProcessor::Native
{

CommandCreatorRegistry::CommandCreatorRegistry() = default;
CommandCreatorRegistry::~CommandCreatorRegistry() = default;

bool CommandCreatorRegistry::RegisterCommandCreator(std::unique_ptr<CommandCreator> creator)
{
    if (creator == nullptr)
        throw ArgumentException();
    int const id = creator->GetId();
    if (m_creators.contains(id))
        return false;
    auto const name = m_idsByName.emplace(creator->GetName(), id);
    try
    {
        m_creators.emplace(id, std::move(creator));
    }
    catch (...)
    {
        if (name.second)
            m_idsByName.erase(name.first);
        throw;
    }
    return true;
}

bool CommandCreatorRegistry::TryFindCommandId(std::string const& name, int& id) const
{
    auto const found = m_idsByName.find(name);
    if (found == m_idsByName.end())
        return false;
    id = found->second;
    return true;
}

CommandCreator const& CommandCreatorRegistry::GetCommandCreator(int id) const
{
    auto const found = m_creators.find(id);
    if (found == m_creators.end())
        throw std::out_of_range("invalid unordered_map<K, T> key");
    return *found->second;
}

} // namespace Vek::Framework::ICommandProcessor::Native
