#pragma once

#include <SysBase/VekDateEx.h>

#include <cstddef>
#include <functional>

/// Agrees with ==. The same value on every run, so attackers may choose keys.
template <>
struct std::hash<VekSysBase::VekDateEx>
{
    VEK_API std::size_t operator()(VekSysBase::VekDateEx const& value) const noexcept;
};
