// Adds up a file of invoice lines by tax rate, in exact decimals. Read this file first, then Summary.cpp.
//
//   InvoiceRun FILE [SUMMARY_XML]
//       reads the lines one by one, rounds each to cents, prints the sums as a table and writes them as XML, too.
//
// A line that is not as InvoiceLine.h says is told on the standard error stream, with its number and the position in it
// (both from 1), and counts as skipped; the sums are those of all other lines. Empty lines are passed over.
//
// A million lines (54 MB) take 0.8 s on one core of an AMD Zen 4 (Linux, Release) and 4 MB of memory, as an empty file
// does.
//
// The exit code is 0, 2 when lines were skipped, or 1 after an error that leaves no sums; it is told on the standard
// error stream as well.

#include "Files.h"
#include "LineReader.h"
#include "Program.h"
#include "Summary.h"

#include <iostream>
#include <vector>

using namespace Example;

namespace
{

void RequireHeader(LineReader& lines)
{
    if (!lines.MoveNext() || !IsInvoiceHeader(FromDocument(std::string(lines.GetText()))))
        throw DocumentError(FullNameOf(lines.GetPath()) + " holds no invoice lines: the first line is not "
                                                          "Rechnung;Datum;Text;Menge;Preis;Rabatt;Steuersatz");
}

void ReportSkippedLine(LineReader const& lines, Fault const& fault)
{
    std::cerr << "line " << lines.GetNumber() << ", position " << fault.position + 1 << ": " << fault.reason << '\n';
}

void AddLine(LineReader const& lines, Summary& summary)
{
    InvoiceLine line;
    Fault fault{ lines.GetText().size(), "the line is too long" };
    if (!lines.IsTooLong() && TryReadInvoiceLine(FromDocument(std::string(lines.GetText())), line, fault))
        return summary.Add(line);
    ReportSkippedLine(lines, fault);
    summary.CountSkipped();
}

Summary AddUp(std::filesystem::path const& path)
{
    LineReader lines(path);
    RequireHeader(lines);
    Summary summary;
    while (lines.MoveNext())
        if (!lines.GetText().empty())
            AddLine(lines, summary);
    return summary;
}

char const* const c_help = R"(InvoiceRun FILE [SUMMARY_XML]
    adds up the invoice lines of FILE by tax rate, each rounded to cents, prints
    the sums and writes them to SUMMARY_XML, too. FILE holds values separated by
    semicolons, in Windows-1252, the first line:
    Rechnung;Datum;Text;Menge;Preis;Rabatt;Steuersatz
    Bad lines are told and skipped; the exit code is 2 then.
InvoiceRun --help
)";

int Run(std::vector<std::wstring> const& arguments)
{
    if (arguments.empty() || arguments.size() > 2)
        throw DocumentError("usage: InvoiceRun FILE [SUMMARY_XML], or --help");
    Summary const summary = AddUp(ToPath(arguments[0]));
    if (arguments.size() == 2)
        WriteSummary(ToPath(arguments[1]), summary);
    PrintSummary(summary);
    return summary.GetSkipped() > 0 ? 2 : 0;
}

} // namespace

int main()
{
    return RunProgram("InvoiceRun", c_help, Run);
}
