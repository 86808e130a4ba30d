#include <ICommandProcessor/LambdaCommandCreator.h>

#include <utility>

namespace Vek::Framework::ICommandProcessor::Native
{

LambdaCommandCreator::LambdaCommandCreator(int id, std::string const& name,
                                           std::function<std::unique_ptr<Command>()> factoryFunction)
    : CommandCreator(id, name),
      m_factoryFunction(std::move(factoryFunction))
{
}
LambdaCommandCreator::LambdaCommandCreator(LambdaCommandCreator const&) = default;
LambdaCommandCreator& LambdaCommandCreator::operator=(LambdaCommandCreator const&) = default;
LambdaCommandCreator::~LambdaCommandCreator() = default;

std::unique_ptr<Command> LambdaCommandCreator::operator()() const
{
    return m_factoryFunction();
}

} // namespace Vek::Framework::ICommandProcessor::Native
