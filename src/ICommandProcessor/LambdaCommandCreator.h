#pragma once

#include <ICommandProcessor/CommandCreator.h>
#include <VekApi.h>

#include <functional>
#include <memory>
#include <string>

namespace Vek::Framework::ICommandProcessor::Native
{

/// A creator from a function.
class VEK_API LambdaCommandCreator : public CommandCreator
{
public:
    LambdaCommandCreator(int id, std::string const& name, std::function<std::unique_ptr<Command>()> factoryFunction);
    LambdaCommandCreator(LambdaCommandCreator const& other);
    LambdaCommandCreator& operator=(LambdaCommandCreator const& other);
    ~LambdaCommandCreator() override;

    /// What the function answers; an empty one throws std::bad_function_call.
    std::unique_ptr<Command> operator()() const override;

private:
    std::function<std::unique_ptr<Command>()> m_factoryFunction;
};

} // namespace Vek::Framework::ICommandProcessor::Native
