#pragma once

#include <SysBase/VekDateEx.h>

#include <string>
#include <vector>

namespace Invoicing
{

/// The command line: FILE [--filter F] [--csv OUT] [--date D].
struct Options
{
    std::wstring file;
    std::wstring filter;
    std::wstring csv; ///< empty for none
    VekSysBase::VekDateEx today;
};

/// Options may stand in any order, each once. Without a date it is that of the system's clock. Throws
/// Example::DocumentError with a German text.
Options ReadOptions(std::vector<std::wstring> const& arguments);

} // namespace Invoicing
