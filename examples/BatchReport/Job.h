#pragma once

#include <Utilities/CancellationToken.h>
#include <Utilities/Decimal.h>
#include <Utilities/Logger.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>

namespace Example
{

struct MonthTotal
{
    long long bookings = 0;
    Vek::Framework::Utilities::Decimal amount{ 0, -2 };
};

struct JobResult
{
    std::array<MonthTotal, 12> months;
    MonthTotal total;
    bool isComplete = false;
};

struct Job
{
    long long rows = 0;
    std::uint64_t seed = 0;
    std::filesystem::path folder;
    /// Called with the number of rows done, before each.
    std::function<void(long long)> onProgress;
};

/// Makes bookings, writes each to "bookings.csv" in the folder, reads it back from its text and adds it up by month.
/// Once the token is cancelled it ends behind the current row: file and sums then hold the same rows, only fewer.
/// Throws DocumentError when the file cannot be written.
JobResult RunJob(Job const& job, Vek::Framework::Utilities::CancellationToken const& token,
                 Vek::Framework::Utilities::Logger& logger);

} // namespace Example
