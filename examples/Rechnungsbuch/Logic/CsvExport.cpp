#include "CsvExport.h"

#include "FileTarget.h"
#include "InvoiceRow.h"
#include "Totals.h"

#include <SysBase/VekDateText.h>
#include <Utilities/AmountText.h>
#include <Utilities/CommaSeparatedValueWriter.h>
#include <Utilities/WStringHelper.h>

#include <initializer_list>

using namespace Vek::Framework::Utilities;
using VekSysBase::FormatGerman;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

void AppendLine(std::wstring& text, std::initializer_list<std::wstring> values)
{
    CommaSeparatedValueWriter writer;
    for (std::wstring const& value : values)
        writer.AddValue(value);
    text += writer.GetResult() + L"\r\n";
}

void AppendInvoice(std::wstring& text, Invoice const& invoice, VekDateEx const& today)
{
    Totals const totals = ComputeTotals(invoice);
    AppendLine(text, { invoice.number, invoice.customer, FormatGerman(invoice.date), FormatTerms(invoice.terms),
                       FormatGerman(invoice.GetDueDate()), FormatAmount(totals.net), FormatAmount(totals.tax),
                       FormatAmount(totals.gross), FormatGerman(invoice.paidOn), DescribeState(invoice, today) });
}

} // namespace

std::string ComposeCsv(std::vector<Invoice const*> const& invoices, VekDateEx const& today)
{
    std::wstring text;
    AppendLine(text, { L"Nummer", L"Kunde", L"Datum", L"Bedingungen", L"F\u00e4llig am", L"Netto", L"Steuer", L"Brutto",
                       L"Bezahlt am", L"Status" });
    for (Invoice const* const invoice : invoices)
        AppendInvoice(text, *invoice, today);
    return WStringHelper::GetWindows1252FromUTF16(text);
}

bool TryExportCsv(std::wstring const& path, std::vector<Invoice const*> const& invoices, VekDateEx const& today,
                  std::wstring& message)
{
    return TryReplaceFile(path, ComposeCsv(invoices, today), message);
}

} // namespace Invoicing
