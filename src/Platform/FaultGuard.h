#pragma once

#include <functional>

namespace Vek::Platform
{

/// Calls `action`, which must not be empty, and answers whether it returned. A C++ exception of any type or a machine
/// fault ends it and is gone afterwards; a fault runs no destructors of the frames that it leaves.
/// Guards nest: the innermost one of the thread takes the fault.
bool RunGuarded(std::function<void()> const& action);

} // namespace Vek::Platform
