#pragma once

#include <IParser/State.h>

namespace Vek::Framework::IParser::Native::Internal
{

/// What every consumer is handed in fact: with whom the run is for, so that one table of states can serve many at a
/// time.
struct CallParams : State::ResultParams
{
    void* owner;
};

} // namespace Vek::Framework::IParser::Native::Internal
