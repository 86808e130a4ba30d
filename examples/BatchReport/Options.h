#pragma once

#include "Job.h"

#include <string>
#include <vector>

namespace Example
{

struct Options
{
    Job job;
    std::wstring logPath;
    long long clockStep = 0;  // nanoseconds; 0 for the real clock
    long long stopAfter = -1; // rows; -1 for all
};

/// ROWS SEED FOLDER [--clock NANOSECONDS] [--stop-after ROWS]. Throws DocumentError for anything else.
Options ReadOptions(std::vector<std::wstring> const& arguments);

} // namespace Example
