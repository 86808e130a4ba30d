#pragma once

#include <VekApi.h>

#include <string>
#include <vector>

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

    /// What stands behind the program's name on the command line, in UTF-16. On Windows argv of main loses what the
    /// code page does not hold; this does not, and it leaves patterns such as *.csv as they are. Throws
    /// InvalidStateException when the system does not say, or on Linux when an argument is no UTF-8.
    static std::vector<std::wstring> GetArguments();
};

} // namespace Vek::Framework::Utilities
