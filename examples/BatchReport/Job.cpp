#include "Job.h"

#include "Booking.h"
#include "Files.h"

#include <Utilities/TimeMeasure.h>
#include <Utilities/WStringHelper.h>

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

Booking Make(BookingGenerator& generator)
{
    TimeMeasure const measure("Make");
    return generator.MakeNext();
}

std::wstring Format(Booking const& booking)
{
    TimeMeasure const measure("Format");
    return FormatBooking(booking);
}

std::wstring Write(std::ostream& stream, Booking const& booking)
{
    TimeMeasure const measure("Write"); // formatting included
    std::wstring line = Format(booking);
    stream << WStringHelper::GetUTF8FromUTF16(line) << '\n';
    return line;
}

Booking Read(std::wstring const& line)
{
    TimeMeasure const measure("Read");
    return ParseBooking(line);
}

void Add(MonthTotal& total, Booking const& booking)
{
    TimeMeasure const measure("Add");
    ++total.bookings;
    total.amount += booking.GetAmount();
}

void AddUp(JobResult& result, Booking const& booking)
{
    TimeMeasure const measure("Add up"); // both additions included
    Add(result.months[booking.time.GetComponents().GetMonth() - 1U], booking);
    Add(result.total, booking);
}

void WarnOfLargeReturn(Logger& logger, Booking const& booking, std::wstring const& line)
{
    if (booking.GetAmount() < Decimal(-39'900))
        logger.Warn(L"A large return: " + line);
}

void WriteBookings(Job const& job, CancellationToken const& token, Logger& logger, std::ostream& stream,
                   JobResult& result)
{
    TimeMeasure const measure("Job");
    BookingGenerator generator(job.seed);
    long long row = 0;
    for (; row < job.rows && !token.IsCanceled(); ++row)
    {
        job.onProgress(row);
        std::wstring const line = Write(stream, Make(generator));
        Booking const booking = Read(line);
        AddUp(result, booking);
        WarnOfLargeReturn(logger, booking, line);
    }
    result.isComplete = row == job.rows;
}

} // namespace

JobResult RunJob(Job const& job, CancellationToken const& token, Logger& logger)
{
    JobResult result;
    logger.Info(L"Begin: " + std::to_wstring(job.rows) + L" rows from seed " + std::to_wstring(job.seed));
    ReplaceFile(job.folder / "bookings.csv",
                [&](std::ostream& stream) { WriteBookings(job, token, logger, stream, result); });
    if (!result.isComplete)
        logger.Warn(L"Stopped on request: what is there is complete up to row " +
                    std::to_wstring(result.total.bookings));
    logger.Info(L"End: " + std::to_wstring(result.total.bookings) + L" rows");
    return result;
}

} // namespace Example
