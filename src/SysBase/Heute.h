#pragma once

#include <SysBase/VekDateEx.h>
#include <VekApi.h>

namespace VekSysBase
{

/// Today's date by the system's clock and zone; the zero date if the system cannot tell. What is to give the same
/// result tomorrow takes its date as an argument.
VEK_API VekDateEx Heute() noexcept;

} // namespace VekSysBase
