#pragma once

#include <functional>
#include <string>
#include <vector>

namespace Example
{

/// What main does in every example: calls `run` with the command line's arguments and answers its exit code. An error
/// is told on the standard error stream behind the program's `name`, and so is a standard output that does not take
/// what is written; the exit code is 1 then. --help as the only argument prints `help`.
int RunProgram(char const* name, char const* help,
               std::function<int(std::vector<std::wstring> const& arguments)> const& run);

} // namespace Example
