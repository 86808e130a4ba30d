// Takes a bank statement apart and puts it together again: separated values in Windows-1252 with amounts, escaped
// separators and attachments come in; the rows that a filter chooses go out as XML and as separated values.
//
//   DataExchange STATEMENT FILTER XML CSV
//       for example: DataExchange statement.csv 'betrag > 100 && waehrung == "EUR"' chosen.xml chosen.csv
//
// Bad lines are told with their number and reason and skipped. Both files are read again and compared with what was
// written. The exit code is 0, or 1 after an error, which is then told on the standard error stream.
// Read Statement.cpp first, then Filter.cpp.

#include "BookingDocument.h"
#include "Console.h"
#include "Files.h"
#include "Filter.h"
#include "Program.h"
#include "Statement.h"

#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <iostream>
#include <map>

using namespace Example;
using namespace Vek::Framework::Utilities;

namespace
{

struct CommandLine
{
    std::filesystem::path statement;
    std::string filter; // UTF-8
    std::filesystem::path document;
    std::filesystem::path values;
};

char const* const c_help = R"(DataExchange STATEMENT FILTER XML CSV
    takes the bank statement STATEMENT apart (values separated by semicolons, in
    Windows-1252, the first line: datum;betrag;waehrung;text;beleg;), and writes
    the bookings that FILTER chooses to the files XML and CSV.
    A filter compares datum, betrag, waehrung, text and beleg (the attachment's
    size in bytes): betrag > 100 && waehrung == "EUR". An empty one chooses all.
DataExchange --help
)";

CommandLine ParseCommandLine(std::vector<std::wstring> const& arguments)
{
    if (arguments.size() != 4)
        throw DocumentError("usage: DataExchange STATEMENT FILTER XML CSV, or --help");
    return { ToPath(arguments[0]), WStringHelper::GetUTF8FromUTF16(arguments[1]), ToPath(arguments[2]),
             ToPath(arguments[3]) };
}

std::string Count(std::size_t number, char const* one, char const* many)
{
    return std::to_string(number) + " " + (number == 1 ? one : many);
}

void PrintSkipped(CommandLine const& files, Statement const& statement)
{
    std::cout << NameOf(files.statement) << ": " << Count(statement.bookings.size(), "booking", "bookings") << ", "
              << Count(statement.skipped.size(), "bad line", "bad lines") << '\n';
    for (SkippedLine const& skipped : statement.skipped)
        std::cout << "  line " << skipped.line << " is skipped: " << skipped.reason << '\n';
}

std::wstring AlignRight(std::wstring const& text, std::size_t width)
{
    return std::wstring(std::max(width, text.size()) - text.size(), L' ') + text;
}

void PrintBookings(std::vector<Booking> const& bookings)
{
    std::map<std::wstring, Decimal> sums;
    for (Booking const& booking : bookings)
    {
        sums[booking.currency] += booking.amount;
        std::wstring const attachment =
            booking.attachment.empty() ? L"" : L" (" + std::to_wstring(booking.attachment.size()) + L" bytes attached)";
        PrintLine(L"  " + booking.date + AlignRight(booking.amount.ToString(L',', L'.'), 24) + L" " + booking.currency +
                  L"  " + booking.text + attachment);
    }
    for (auto const& [currency, sum] : sums)
        PrintLine(L"  sum       " + AlignRight(sum.ToString(L',', L'.'), 24) + L" " + currency);
}

void RequireSame(bool isSame, std::filesystem::path const& path)
{
    if (!isSame)
        throw DocumentError(FullNameOf(path) + " was read again with other bookings than those written");
}

void WriteDocumentAndCheck(std::filesystem::path const& path, std::vector<Booking> const& chosen)
{
    WriteBookingDocument(path, chosen);
    RequireSame(ReadBookingDocument(path) == chosen, path);
    std::cout << NameOf(path) << " holds them, read again and compared\n";
}

void WriteValuesAndCheck(CommandLine const& files, Statement const& chosen)
{
    WriteStatement(files.values, chosen);
    Statement const again = ReadStatement(files.values);
    RequireSame(again.skipped.empty() && again.bookings == chosen.bookings, files.values);
    std::cout << NameOf(files.values) << " holds them, read again and compared";
    if (ReadFile(files.values) == ReadFile(files.statement))
        std::cout << "; it is the statement, byte for byte";
    std::cout << '\n';
}

bool IsSameFile(std::filesystem::path const& left, std::filesystem::path const& right)
{
    std::error_code ignored; // what cannot be found is no file that could be lost
    std::filesystem::path const place = std::filesystem::weakly_canonical(left, ignored);
    return std::filesystem::equivalent(left, right, ignored) ||
           (!place.empty() && place == std::filesystem::weakly_canonical(right, ignored));
}

/// The statement still holds what was skipped and not chosen, so no result may take its place.
void RequireDifferentFiles(CommandLine const& files)
{
    for (std::filesystem::path const& target : { files.document, files.values })
        if (IsSameFile(target, files.statement))
            throw DocumentError(FullNameOf(target) + " is the statement itself and is not replaced");
    if (IsSameFile(files.document, files.values))
        throw DocumentError(FullNameOf(files.values) + " cannot hold the XML and the separated values as well");
}

void Run(CommandLine const& files)
{
    RequireDifferentFiles(files);
    Filter const filter = ParseFilter(files.filter);
    Statement const statement = ReadStatement(files.statement);
    PrintSkipped(files, statement);

    Statement chosen{ {}, {}, statement.lineEnd };
    std::copy_if(statement.bookings.begin(), statement.bookings.end(), std::back_inserter(chosen.bookings), filter);
    std::cout << Count(chosen.bookings.size(), "booking is", "bookings are") << " chosen by "
              << (files.filter.empty() ? "no filter" : files.filter) << '\n';
    PrintBookings(chosen.bookings);
    WriteDocumentAndCheck(files.document, chosen.bookings);
    RequireDifferentFiles(files); // Windows tells names that differ in case apart only until one of them exists
    WriteValuesAndCheck(files, chosen);
}

} // namespace

int main()
{
    return RunProgram("DataExchange", c_help,
                      [](std::vector<std::wstring> const& arguments)
                      {
                          Run(ParseCommandLine(arguments));
                          return 0;
                      });
}
