#pragma once

namespace Vek::Framework::Utilities
{

/// What becomes of the last digit that is kept.
enum class RoundMode : int
{
    AwayFromZero = 0,     ///< one more if any dropped digit is not zero
    HalfAwayFromZero = 1, ///< one more if the dropped part is one half or more
    TowardZero = 2        ///< stays as it is
};

} // namespace Vek::Framework::Utilities
