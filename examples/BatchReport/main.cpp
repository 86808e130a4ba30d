// A long job that tells what it does: progress, log, time report, a picture, and a clean end at Ctrl+C. Read this file
// first, then Job.cpp.
//
//   BatchReport ROWS SEED FOLDER [--clock NANOSECONDS] [--stop-after ROWS]
//       makes bookings from the seed, writes them to FOLDER/bookings.csv, reads each back and adds up by month, prints
//       the sums and where the time went, and paints that as FOLDER/sections.bmp. FOLDER must exist.
//
// The log has three sinks: FOLDER/batch.log has everything and is put aside when it reaches 1 MB; the debugger gets
// errors; the third counts for the last line of the output.
// --clock makes a run the same each time: every look at the clock is so much later than the one before, and the lines
// of the log all carry one time. --stop-after does after so many rows what Ctrl+C does.
//
// The exit code is 0, 2 when the job was stopped, or 1 after an error, which is told on the standard error stream.

#include "Chart.h"
#include "Console.h"
#include "Files.h"
#include "Interruption.h"
#include "Options.h"
#include "Program.h"
#include "Table.h"

#include <Utilities/AmountText.h>
#include <Utilities/DebuggerLogger.h>
#include <Utilities/FileLogger.h>
#include <Utilities/LevelFilterLogger.h>
#include <Utilities/MultiLogger.h>
#include <Utilities/TimeMeasureContainer.h>
#include <Utilities/WStringHelper.h>

#include <iostream>

using namespace Vek::Framework::Utilities;
using namespace Example;

namespace
{

constinit CancellationToken s_token;

struct LogCounts
{
    long long infos = 0;
    long long others = 0;
};

/// A sink of the program's own.
class CountingLogger : public Logger
{
public:
    explicit CountingLogger(LogCounts& counts) : m_counts(counts) {}
    void Log(Level level, std::wstring const&) override { ++(level == Level::Info ? m_counts.infos : m_counts.others); }

private:
    LogCounts& m_counts;
};

void SetClock(long long step)
{
    if (step > 0)
        TimeMeasureContainer::SetCurrentNanoSecondsGetter([step, now = 0LL]() mutable { return now += step; });
}

std::function<DateTime()> GetLogClock(Options const& options)
{
    if (options.clockStep == 0)
        return {};
    return [] { return DateTime::FromComponents(2024, 10, 27, 2, 30, 0); };
}

void AddSinks(MultiLogger& loggers, Options const& options, LogCounts& counts)
{
    loggers.Add(std::make_unique<FileLogger>(options.logPath, FileLoggerOptions{ 1'000'000, 3, GetLogClock(options) }));
    loggers.Add(std::make_unique<LevelFilterLogger>(Logger::Level::Error, std::make_unique<DebuggerLogger>()));
    loggers.Add(std::make_unique<CountingLogger>(counts));
}

/// Writes over its own line, a hundred times in all.
void ShowProgress(long long row, long long rows)
{
    if (row % (rows / 100 + 1) == 0)
        std::cerr << '\r' << row * 100 / rows << " %" << std::flush;
}

std::vector<std::wstring> MakeRow(std::wstring const& name, MonthTotal const& total)
{
    return { name, std::to_wstring(total.bookings), FormatAmount(total.amount) };
}

void PrintResult(JobResult const& result)
{
    std::vector<std::vector<std::wstring>> rows = { { L"Monat", L"Buchungen", L"Betrag" } };
    for (std::size_t month = 0; month < result.months.size(); ++month)
        rows.push_back(MakeRow((month < 9 ? L"2024-0" : L"2024-") + std::to_wstring(month + 1), result.months[month]));
    rows.push_back(MakeRow(L"Summe", result.total));
    PrintTable(rows);
}

/// The report's separators are bytes of Windows-1252, the console takes UTF-8.
void PrintReport()
{
    std::wstring report = WStringHelper::GetWStringFromCurrentCodepage(TimeMeasureContainer::GetResults());
    report.pop_back(); // the last line's end
    PrintLine(report);
}

/// A bar for each section but the one that holds them all.
void PaintSections(std::filesystem::path const& path)
{
    std::vector<long long> times;
    auto const add = [&](TimeMeasureInfo const& info, std::string const& name)
    {
        if (name != "Job")
            times.push_back(info.GetTotalTimeInNanoSeconds());
    };
    TimeMeasureContainer::ForEachMeasure(add);
    ReplaceFile(path, [&](std::ostream& stream) { PaintBars(times).WriteBitmap(stream); });
}

char const* const c_help = R"(BatchReport ROWS SEED FOLDER [--clock NANOSECONDS] [--stop-after ROWS]
    makes as many bookings from the seed, adds them up by month and tells where
    the time went. Writes bookings.csv, batch.log and sections.bmp to FOLDER.
    Ctrl+C stops behind the current row; the exit code is 2 then.
    --clock       lets the clock go on by so much at each look: all runs are alike
    --stop-after  stops as Ctrl+C does, behind so many rows
BatchReport --help
)";

int Run(std::vector<std::wstring> const& arguments)
{
    Options options = ReadOptions(arguments);
    options.job.onProgress = [&options](long long row)
    {
        ShowProgress(row, options.job.rows);
        if (row + 1 == options.stopAfter)
            s_token.Cancel();
    };
    SetClock(options.clockStep);
    if (options.stopAfter == 0)
        s_token.Cancel();
    CancelOnInterruption(s_token);

    LogCounts counts;
    MultiLogger loggers;
    AddSinks(loggers, options, counts);
    JobResult const result = RunJob(options.job, s_token, loggers);
    std::cerr << "\r100 %\n";
    PrintResult(result);
    PrintReport();
    PaintSections(options.job.folder / "sections.bmp");
    PrintLine(L"Log: " + std::to_wstring(counts.infos) + L" messages, " + std::to_wstring(counts.others) +
              L" warnings and errors");
    return result.isComplete ? 0 : 2;
}

} // namespace

int main()
{
    return RunProgram("BatchReport", c_help, Run);
}
