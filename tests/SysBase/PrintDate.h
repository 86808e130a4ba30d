// How a failed comparison shows a date.
#pragma once

#include <SysBase/VekDateEx.h>

#include <ostream>

namespace VekSysBase
{

inline void PrintTo(VekDateEx const& date, std::ostream* out)
{
    *out << date.GetDay() << '.' << date.GetMonth() << '.' << date.GetYear();
}

} // namespace VekSysBase
