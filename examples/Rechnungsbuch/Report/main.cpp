// Reports on a book of invoices: a table, sums by tax rate, what is open and overdue. The dialogs of Windows stand on
// the same logic. Read ../Logic/InvoiceBook.h first, then BookReader.cpp and InvoiceFilter.cpp beside it.
//
//   RechnungsbuchReport FILE [--filter F] [--csv OUT] [--date D]
//
// With a date the output is the same on any day. The exit code is 0, or 1 after an error, which is told in German on
// the standard error stream.

#include "BookSession.h"
#include "Console.h"
#include "CsvExport.h"
#include "Files.h"
#include "FileTarget.h"
#include "InvoiceFilter.h"
#include "Options.h"
#include "Program.h"
#include "Report.h"

#include <SysBase/VekDateText.h>
#include <Utilities/MultiLogger.h>
#include <Utilities/WStringHelper.h>

#include <filesystem>
#include <system_error>

using namespace Invoicing;
using Vek::Framework::Utilities::MultiLogger;
using Vek::Framework::Utilities::WStringHelper;

namespace
{

wchar_t const* const c_help =
    L"RechnungsbuchReport FILE [--filter F] [--csv OUT] [--date D]\n"
    L"    zeigt die Rechnungen der Datei FILE, die Summen je Steuersatz, und was offen,\n"
    L"    \u00fcberf\u00e4llig und bezahlt ist.\n"
    L"    --filter F  nur diese: \"Kunde Huber und Betrag > 1.000\", \"\u00fcberf\u00e4llig oder\n"
    L"                f\u00e4llig vor 1.5.2025\"; dazu offen, bezahlt, Nummer, Datum, nicht, ( )\n"
    L"    --csv OUT   schreibt sie auch in die Datei OUT, durch Strichpunkte getrennt\n"
    L"    --date D    gilt als heute, sonst das Datum des Rechners: 31.3.2025\n"
    L"RechnungsbuchReport --help\n";

[[noreturn]] void Fail(std::wstring const& text)
{
    throw Example::DocumentError(WStringHelper::GetUTF8FromUTF16(text));
}

InvoiceFilter ReadFilter(std::wstring const& text)
{
    InvoiceFilter filter;
    InputFault fault;
    if (!TryReadFilter(text, filter, fault))
        Fail(L"--filter, Stelle " + std::to_wstring(fault.position + 1) + L": " + fault.text);
    return filter;
}

std::vector<Invoice const*> Choose(InvoiceBook const& book, InvoiceFilter const& filter,
                                   VekSysBase::VekDateEx const& today)
{
    std::vector<Invoice const*> chosen;
    for (Invoice const& invoice : book.GetInvoices())
        if (filter(invoice, today))
            chosen.push_back(&invoice);
    return chosen;
}

/// The book would be lost.
void RequireOtherFile(Options const& options)
{
    std::error_code ignored; // what is not there yet is no book
    if (std::filesystem::equivalent(Example::ToPath(options.file), Example::ToPath(options.csv), ignored))
        Fail(L"--csv nennt das Rechnungsbuch selbst; es wird nicht \u00fcberschrieben.");
}

int Run(std::vector<std::wstring> const& arguments)
{
    Options const options = ReadOptions(arguments);
    InvoiceFilter const filter = ReadFilter(options.filter);
    RequireOtherFile(options);
    MultiLogger nowhere;
    BookSession session(nowhere);
    DocumentFault fault;
    if (!session.TryOpen(options.file, fault))
        Fail(FormatDocumentFault(GetFileName(options.file), fault));
    std::vector<Invoice const*> const chosen = Choose(session.GetBook(), filter, options.today);
    std::wstring message;
    if (!options.csv.empty() && !TryExportCsv(options.csv, chosen, options.today, message))
        Fail(message);
    Example::PrintLine(L"Rechnungsbuch " + GetFileName(options.file) + L", Stichtag " + FormatGerman(options.today) +
                       (options.filter.empty() ? L"" : L", Filter: " + options.filter));
    Example::PrintLine({});
    PrintReport(chosen, options.today);
    return 0;
}

} // namespace

int main()
{
    return Example::RunProgram("RechnungsbuchReport", WStringHelper::GetUTF8FromUTF16(c_help).c_str(), Run);
}
