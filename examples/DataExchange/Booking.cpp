#include "Booking.h"

#include "Quotes.h"

#include <Exceptions/ArgumentException.h>
#include <Utilities/Base64.h>
#include <Utilities/CommaSeparatedValueReader.h>
#include <Utilities/CommaSeparatedValueWriter.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <chrono>

using namespace Vek::Framework::Utilities;

namespace Example
{

wchar_t const* const c_statementHeader = L"datum;betrag;waehrung;text;beleg;";

namespace
{

constexpr wchar_t c_separator = L';';
constexpr std::size_t c_columns = 5;

std::string Quote(std::wstring const& text)
{
    return "\"" + WStringHelper::GetUTF8FromUTF16(text) + "\"";
}

std::vector<std::wstring> Split(std::wstring const& line)
{
    if (FindQuotedValue(line, c_separator) != std::wstring::npos)
        throw BadBooking("a value is quoted; there are no quotes, a backslash protects a semicolon");
    std::vector<std::wstring> values;
    CommaSeparatedValueReader reader(line, c_separator);
    try
    {
        while (reader.MoveNext())
            values.push_back(reader.GetCurrentValue());
    }
    catch (std::out_of_range const&)
    {
        throw BadBooking("the line ends behind a backslash, which promises one more character");
    }
    if (values.size() != c_columns)
        throw BadBooking("the count of values is " + std::to_string(values.size()) + " instead of " +
                         std::to_string(c_columns));
    return values;
}

bool IsCurrency(std::wstring const& text)
{
    return text.size() == 3 &&
           std::all_of(text.begin(), text.end(), [](wchar_t letter) { return letter >= L'A' && letter <= L'Z'; });
}

/// Negative for anything but a few digits.
int ParseDigits(std::wstring const& text)
{
    int number = 0;
    for (wchar_t const digit : text)
    {
        if (digit < L'0' || digit > L'9')
            return -1;
        number = number * 10 + (digit - L'0');
    }
    return number;
}

std::vector<unsigned char> ParseAttachment(std::wstring const& text)
{
    try
    {
        auto const bytes = Base64::Decode(text);
        return { bytes->GetData(), bytes->GetData() + bytes->GetSize() };
    }
    catch (std::invalid_argument const& error)
    {
        throw CutOffAttachment(std::string("the attachment is cut off (") + error.what() + ")");
    }
    catch (Vek::ArgumentException const&)
    {
        throw BadBooking("the attachment holds a character that Base64 does not have");
    }
}

} // namespace

bool Booking::operator==(Booking const& other) const
{
    return FormatBooking(*this) == FormatBooking(other);
}

std::wstring FormatAmount(Decimal const& amount)
{
    return amount.ToString(L',', {});
}

Decimal ParseAmount(std::wstring const& text)
{
    Decimal const amount = Decimal::FromString(text, L',');
    // What comes back in another form, as "1e3", "007,00" and everything that is no number does, was no amount.
    if (amount.GetFractionalDigits() != 2 || FormatAmount(amount) != text)
        throw BadBooking(Quote(text) + " is no amount such as 1234,50");
    return amount;
}

int GetDayNumber(std::wstring const& date)
{
    if (date.size() != 10 || date[2] != L'.' || date[5] != L'.')
        return 0;
    int const day = ParseDigits(date.substr(0, 2));
    int const month = ParseDigits(date.substr(3, 2));
    int const year = ParseDigits(date.substr(6, 4));
    if (day < 0 || month < 0 || year < 0)
        return 0;
    bool const isDate =
        std::chrono::year_month_day(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                    std::chrono::day(static_cast<unsigned>(day)))
            .ok();
    return isDate ? year * 10000 + month * 100 + day : 0;
}

Booking ParseBooking(std::size_t line, std::wstring const& text)
{
    std::vector<std::wstring> const values = Split(text);
    if (GetDayNumber(values[0]) == 0)
        throw BadBooking(Quote(values[0]) + " is no date such as 31.12.2025");
    Decimal const amount = ParseAmount(values[1]);
    if (!IsCurrency(values[2]))
        throw BadBooking(Quote(values[2]) + " is no currency such as EUR");
    Booking const booking{ line, values[0], amount, values[2], values[3], ParseAttachment(values[4]) };
    if (FormatBooking(booking) != text)
        throw BadBooking("the line would be written in another way: " + Quote(FormatBooking(booking)));
    return booking;
}

std::wstring FormatBooking(Booking const& booking)
{
    CommaSeparatedValueWriter writer(c_separator);
    writer.AddValue(booking.date);
    writer.AddValue(FormatAmount(booking.amount));
    writer.AddValue(booking.currency);
    writer.AddValue(booking.text);
    writer.AddValue(Base64::Encode(booking.attachment.data(), booking.attachment.size()));
    return writer.GetResult();
}

} // namespace Example
