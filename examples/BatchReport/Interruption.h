#pragma once

#include <Utilities/CancellationToken.h>

namespace Example
{

/// From now on Ctrl+C cancels the token instead of ending the program. The token must live as long as the program.
void CancelOnInterruption(Vek::Framework::Utilities::CancellationToken& token);

} // namespace Example
