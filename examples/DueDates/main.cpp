// Tells of a list of invoices by when each is to be paid, what it costs to be late and when to remind. Read this file
// first, then DueDates.cpp.
//
//   DueDates FILE DATE PERCENT [RESULT_CSV RESULT_XML]
//       prints the due dates of the payment list with the interest up to DATE (31.12.2024) at PERCENT a year (9,2), the
//       holidays of that year and the sheet of that month; writes all of it as separated values and as XML, too.
//
// The clock is never asked, so the same arguments give the same result on any day and in any time zone. The file is
// Windows-1252, a line for each invoice as Payment.h and Terms.h say.
//
// A line that is not so is told on the standard error stream, with its number and the position in it (both from 1), and
// counts as skipped; all other lines are computed. Empty lines are passed over.
//
// The exit code is 0, 2 when lines were skipped, or 1 after an error that leaves no result; it is told on the standard
// error stream as well.

#include "Console.h"
#include "Files.h"
#include "LineReader.h"
#include "Output.h"
#include "Program.h"

#include <SysBase/VekDateText.h>
#include <Utilities/AmountText.h>

#include <iostream>

using namespace Example;
using namespace Vek::Framework::Utilities;

namespace
{

Settings ReadSettings(std::wstring const& date, std::wstring const& percent)
{
    Settings settings;
    Fault fault;
    if (!TryReadDate(date, settings.referenceDate, fault))
        throw DocumentError("the date, position " + std::to_string(fault.position + 1) + ": " + fault.reason);
    if (!TryReadAmount(percent, 3, settings.yearlyPercent, fault))
        throw DocumentError("the rate, position " + std::to_string(fault.position + 1) + ": " + fault.reason);
    if (settings.yearlyPercent < 0 || settings.yearlyPercent > 100)
        throw DocumentError("a rate lies between 0 and 100");
    return settings;
}

void RequireHeader(LineReader& lines)
{
    if (!lines.MoveNext() || !IsPaymentHeader(FromDocument(std::string(lines.GetText()))))
        throw DocumentError(FullNameOf(lines.GetPath()) + " holds no payments: the first line is not "
                                                          "Nummer;Rechnungsdatum;Betrag;Bedingungen;Bezahlt am");
}

void AddLine(LineReader const& lines, Result& result)
{
    Payment payment;
    Fault fault{ lines.GetText().size(), "the line is too long" };
    if (!lines.IsTooLong() &&
        TryReadPayment(FromDocument(std::string(lines.GetText())), result.settings, payment, fault))
    {
        result.entries.push_back({ payment, Compute(payment, result.settings) });
        return;
    }
    std::cerr << "line " << lines.GetNumber() << ", position " << fault.position + 1 << ": " << fault.reason << '\n';
    ++result.skipped;
}

Result ComputeAll(std::filesystem::path const& path, Settings const& settings)
{
    LineReader lines(path);
    RequireHeader(lines);
    Result result{ settings, {}, 0 };
    while (lines.MoveNext())
        if (!lines.GetText().empty())
            AddLine(lines, result);
    return result;
}

void Print(Result const& result)
{
    VekSysBase::VekDateEx const& date = result.settings.referenceDate;
    Decimal const& percent = result.settings.yearlyPercent;
    PrintLine(L"Stichtag " + VekSysBase::FormatGerman(date) + L", Zinssatz " +
              FormatAmount(percent, AmountGrouping::None, percent.GetFractionalDigits()) + L" %");
    PrintLine({});
    PrintEntries(result);
    if (result.skipped > 0)
        PrintLine(L"\u00dcbersprungene Zeilen: " + std::to_wstring(result.skipped));
    PrintLine({});
    PrintHolidays(date.GetYear());
    PrintLine({});
    PrintMonth(date);
}

char const* const c_help = R"(DueDates FILE DATE PERCENT [RESULT_CSV RESULT_XML]
    prints the due dates of the payment list FILE with the interest up to DATE
    (31.12.2024) at PERCENT a year (9,2), the holidays of that year and the sheet
    of that month; writes all of it to RESULT_CSV and RESULT_XML, too. FILE holds
    values separated by semicolons, in Windows-1252, the first line:
    Nummer;Rechnungsdatum;Betrag;Bedingungen;Bezahlt am
    Bad lines are told and skipped; the exit code is 2 then.
DueDates --help
)";

int Run(std::vector<std::wstring> const& arguments)
{
    if (arguments.size() != 3 && arguments.size() != 5)
        throw DocumentError("usage: DueDates FILE DATE PERCENT [RESULT_CSV RESULT_XML], or --help");
    Result const result = ComputeAll(ToPath(arguments[0]), ReadSettings(arguments[1], arguments[2]));
    if (arguments.size() == 5)
    {
        WriteSeparatedValues(ToPath(arguments[3]), result);
        WriteXml(ToPath(arguments[4]), result);
    }
    Print(result);
    return result.skipped > 0 ? 2 : 0;
}

} // namespace

int main()
{
    return RunProgram("DueDates", c_help, Run);
}
