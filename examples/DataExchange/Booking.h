#pragma once

#include <Utilities/Decimal.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace Example
{

/// One row of a bank statement. Its line is "datum;betrag;waehrung;text;beleg;", in the dialect of the library's
/// separated values, and every booking gives exactly the line it was read from.
struct Booking
{
    std::size_t line = 0; ///< of the file, from 1
    std::wstring date;    ///< TT.MM.JJJJ, a date of the calendar
    Vek::Framework::Utilities::Decimal amount;
    std::wstring currency; ///< three capital letters
    std::wstring text;
    std::vector<unsigned char> attachment; ///< empty for none

    bool operator==(Booking const& other) const;
};

/// The first line of every statement.
extern wchar_t const* const c_statementHeader;

/// A line that is no booking; what() says why, in UTF-8. The others are not touched by it.
class BadBooking : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// An attachment that ends too early: the file was cut off on its way, so that nothing of it can be trusted.
class CutOffAttachment : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Throws BadBooking or CutOffAttachment.
Booking ParseBooking(std::size_t line, std::wstring const& text);

/// The line of a booking, without a line end.
std::wstring FormatBooking(Booking const& booking);

/// "1234,50", without groups.
std::wstring FormatAmount(Vek::Framework::Utilities::Decimal const& amount);

/// Throws BadBooking for anything but an amount as FormatAmount writes it.
Vek::Framework::Utilities::Decimal ParseAmount(std::wstring const& text);

/// JJJJMMTT as a number, for comparisons; 0 for what is no date as TT.MM.JJJJ.
int GetDayNumber(std::wstring const& date);

} // namespace Example
