#pragma once

/// What this processor can do beyond SSE2, which every one has; looked up on first use.
namespace Vek::Platform
{

bool HasSsse3() noexcept;
bool HasAvx2() noexcept; // and SSSE3

} // namespace Vek::Platform
