#pragma once

#include <IParser/State.h>

#include <functional>
#include <string>

namespace Vek::Framework::IParser::Native::Internal
{

/// A registered token of a state.
struct StateToken
{
    /// What happens when the token is met. Skip and Transition spare the call of a consumer.
    enum class Action : unsigned char
    {
        Call,      ///< `consumer` is called
        Skip,      ///< nothing
        Transition ///< `nextStateId` becomes current
    };

    std::function<void(State::ResultParams&)> consumer;
    std::string text; ///< as registered
    std::string key;  ///< `text`, with ASCII letters in lower case when the case does not matter
    bool isCaseSensitive = true;
    Action action = Action::Call;
    unsigned int nextStateId = 0; ///< for Action::Transition
};

} // namespace Vek::Framework::IParser::Native::Internal
