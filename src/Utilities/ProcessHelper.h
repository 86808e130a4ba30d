#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities
{

/// Facts about the running process. Never instantiated.
class VEK_API ProcessHelper
{
public:
    ProcessHelper() = delete;

    /// The directory of the running program, without a separator at its end; not the current directory.
    /// Throws InvalidStateException when the system does not say, or on Linux when the path is no UTF-8.
    static std::wstring GetProcessStartDirectory();
};

} // namespace Vek::Framework::Utilities
