// microprofile and spdlog with the work of DiagnosticsBenchmark.cpp.

#include "DiagnosticsContest.h"

#include <microprofile.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/sinks/null_sink.h>
#include <spdlog/spdlog.h>

#include <memory>
#include <string>

namespace Benchmarks
{

namespace
{

std::string const c_narrowMessage(100, 'x');

void MeasureScopesWithMicroprofile(benchmark::State& state)
{
    [[maybe_unused]] static bool const s_isPrepared = []
    {
        MicroProfileOnThreadCreate("benchmark");
        MicroProfileSetEnableAllGroups(1);
        MicroProfileFlip(nullptr);
        return true;
    }();
    auto const work = []
    {
        for (int i = 0; i < c_roundSize; ++i)
        {
            MICROPROFILE_SCOPEI("benchmark", "Load the document", 0xFF0000);
        }
    };
    Run(state, work, [] { MicroProfileFlip(nullptr); });
}

void LogToThreeWithSpdlog(benchmark::State& state)
{
    auto const makeSink = [] { return std::make_shared<spdlog::sinks::null_sink_st>(); };
    spdlog::logger logger("three", { makeSink(), makeSink(), makeSink() });
    auto const work = [&]
    {
        for (int i = 0; i < c_roundSize; ++i)
            logger.info(c_narrowMessage);
    };
    Run(state, work);
}

void LogToFileWithSpdlog(benchmark::State& state)
{
    LogFile const file("spdlog.log");
    spdlog::logger logger("file", std::make_shared<spdlog::sinks::basic_file_sink_st>(file.GetPath().string()));
    logger.set_pattern("%Y-%m-%d %H:%M:%S.%e %^%l%$ %v");
    logger.flush_on(spdlog::level::warn);
    LogToFile(state, file, logger, c_narrowMessage);
}

BENCHMARK(MeasureScopesWithMicroprofile)->Name("MeasuredScope/microprofile");
BENCHMARK(LogToThreeWithSpdlog)->Name("LogToThreeSinks/spdlog");
BENCHMARK(LogToFileWithSpdlog)->Name("LogToFile/spdlog");

} // namespace

} // namespace Benchmarks
