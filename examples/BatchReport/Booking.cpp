#include "Booking.h"

#include "Files.h"

#include <Utilities/AmountText.h>
#include <Utilities/CommaSeparatedValueReader.h>
#include <Utilities/CommaSeparatedValueWriter.h>
#include <Utilities/DateTimeText.h>
#include <Utilities/Duration.h>

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

constexpr int c_minutesOf2024 = 366 * 24 * 60;

Decimal ReadAmount(CommaSeparatedValueReader& reader)
{
    Decimal amount;
    AmountFault fault;
    if (!reader.MoveNext() || !TryParseAmount(reader.GetCurrentValue(), amount, fault))
        throw DocumentError("a booking has no amount where one should stand");
    return amount;
}

} // namespace

Decimal Booking::GetAmount() const
{
    return (quantity * price).Round(2, RoundMode::HalfAwayFromZero, true);
}

Booking BookingGenerator::MakeNext()
{
    DateTime const start = DateTime::FromComponents(2024, 1, 1, 0, 0, 0);
    DateTime const time = start + Duration::CreateRelative(Decimal(GetBelow(c_minutesOf2024)), Duration::Minutes);
    int const quantity = GetBelow(40) - 4; // a tenth is taken back
    return { time, Decimal(quantity), Decimal(GetBelow(10'000'000), -3) };
}

int BookingGenerator::GetBelow(int limit)
{
    m_state = m_state * 6364136223846793005U + 1442695040888963407U; // Knuth's MMIX
    return static_cast<int>((m_state >> 33U) % static_cast<unsigned>(limit));
}

std::wstring FormatBooking(Booking const& booking)
{
    CommaSeparatedValueWriter writer;
    writer.AddValue(FormatIso8601(booking.time));
    writer.AddValue(FormatAmount(booking.quantity, AmountGrouping::None, 0));
    writer.AddValue(FormatAmount(booking.price, AmountGrouping::None, 3));
    writer.AddValue(FormatAmount(booking.GetAmount(), AmountGrouping::None));
    return writer.GetResult();
}

Booking ParseBooking(std::wstring const& line)
{
    CommaSeparatedValueReader reader(line, L';');
    Booking booking;
    DateTextFault fault;
    if (!reader.MoveNext() || !TryParseIso8601(reader.GetCurrentValue(), booking.time, fault))
        throw DocumentError("a booking has no time");
    booking.quantity = ReadAmount(reader);
    booking.price = ReadAmount(reader);
    if (ReadAmount(reader) != booking.GetAmount())
        throw DocumentError("a booking's amount is not its quantity times its price");
    return booking;
}

} // namespace Example
