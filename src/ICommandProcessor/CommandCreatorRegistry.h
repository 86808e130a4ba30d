#pragma once

#include <ICommandProcessor/CommandCreator.h>
#include <VekApi.h>

#include <memory>
#include <string>
#include <unordered_map>

namespace Vek::Framework::ICommandProcessor::Native
{

/// The commands that a program knows, by number and by name. Owns the creators.
class VEK_API CommandCreatorRegistry
{
public:
    CommandCreatorRegistry();
    CommandCreatorRegistry(CommandCreatorRegistry const&) = delete;
    CommandCreatorRegistry& operator=(CommandCreatorRegistry const&) = delete;
    ~CommandCreatorRegistry();

    /// False when the number is taken: the new creator is destroyed at once and the old one stays. Names may be shared.
    /// Throws ArgumentException for a null pointer.
    bool RegisterCommandCreator(std::unique_ptr<CommandCreator> creator);

    /// Byte by byte; of several with the name, the one registered first. Without one false, and `id` is left alone.
    bool TryFindCommandId(std::string const& name, int& id) const;

    /// Valid as long as the registry. Throws std::out_of_range ("invalid unordered_map<K, T> key").
    CommandCreator const& GetCommandCreator(int id) const;

private:
    std::unordered_map<int, std::unique_ptr<CommandCreator>> m_creators;
    std::unordered_map<std::string, int> m_idsByName; // of the first one of each name
};

} // namespace Vek::Framework::ICommandProcessor::Native
