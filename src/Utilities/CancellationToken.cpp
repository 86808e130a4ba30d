#include <Utilities/CancellationToken.h>

namespace Vek::Framework::Utilities
{

CancellationToken const& CancellationToken::None() noexcept
{
    static constinit CancellationToken const s_none;
    return s_none;
}

} // namespace Vek::Framework::Utilities
