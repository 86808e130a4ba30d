#pragma once

#include <Utilities/DateTime.h>
#include <Utilities/Decimal.h>

#include <cstdint>
#include <string>

namespace Example
{

struct Booking
{
    Vek::Framework::Utilities::DateTime time;
    Vek::Framework::Utilities::Decimal quantity;
    Vek::Framework::Utilities::Decimal price;

    /// The product in whole cents, half a cent away from zero.
    Vek::Framework::Utilities::Decimal GetAmount() const;
};

/// Makes bookings of the year 2024: the same ones for the same seed, on every system.
class BookingGenerator
{
public:
    explicit BookingGenerator(std::uint64_t seed) : m_state(seed) {}

    Booking MakeNext();

private:
    int GetBelow(int limit);

    std::uint64_t m_state;
};

/// A line of separated values, without its end: 2024-03-05T14:30:00;12;3,45;41,40;
std::wstring FormatBooking(Booking const& booking);

/// Reads such a line strictly. Throws DocumentError for any other one, also when the amount is not the product.
Booking ParseBooking(std::wstring const& line);

} // namespace Example
