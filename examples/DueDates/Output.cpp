// The same result three times: as a table for people, as separated values and as a document for programs.

#include "Output.h"

#include "Document.h"
#include "Table.h"

#include <SysBase/VekDateText.h>
#include <Utilities/AmountText.h>
#include <Utilities/CommaSeparatedValueWriter.h>

using namespace Vek::Framework::IXMLStreamer::Native;
using namespace Vek::Framework::Utilities;
using VekSysBase::FormatGerman;
using VekSysBase::VekDateEx;

namespace Example
{

namespace
{

using Row = std::vector<std::wstring>;

Decimal SumOf(Result const& result, Decimal (*get)(Entry const&))
{
    Decimal sum(0, -2);
    for (Entry const& entry : result.entries)
        sum += get(entry);
    return sum;
}

Decimal GetAmount(Entry const& entry)
{
    return entry.payment.amount;
}

Decimal GetInterest(Entry const& entry)
{
    return entry.due.interest;
}

std::wstring FormatDiscount(DueDates const& due)
{
    return due.discountDate.IsZero() ? std::wstring() : FormatAmount(due.discount);
}

std::string ToIso(VekDateEx const& date)
{
    return ToDocument(FormatIso8601(date));
}

std::string ToPoint(Decimal const& amount)
{
    return ToDocument(amount.ToString(L'.', {}));
}

void WriteEntry(XMLWriter& writer, Entry const& entry)
{
    Payment const& payment = entry.payment;
    DueDates const& due = entry.due;
    writer.WriteBeginStructure("payment", [&](XMLWriter::AttributeEmitter const& emit)
                               { emit("number", ToDocument(payment.number)); });
    writer.WriteContentValue("invoiceDate", ToIso(payment.invoiceDate));
    writer.WriteContentValue("amount", ToPoint(payment.amount));
    if (!due.discountDate.IsZero())
        writer.WriteContentValue("discount", ToPoint(due.discount),
                                 [&](XMLWriter::AttributeEmitter const& emit)
                                 { emit("until", ToIso(due.discountDate)); });
    writer.WriteContentValue("due", ToIso(due.netDate));
    if (!payment.paidOn.IsZero())
        writer.WriteContentValue("paid", ToIso(payment.paidOn));
    writer.WriteContentValue("daysLate", due.daysLate);
    writer.WriteContentValue("interest", ToPoint(due.interest));
    for (VekDateEx const& date : due.dunning)
        writer.WriteContentValue("dunning", ToIso(date));
    writer.WriteEndStructure();
}

void WriteContent(XMLWriter& writer, Result const& result)
{
    writer.WriteBeginStructure("dueDates",
                               [&](XMLWriter::AttributeEmitter const& emit)
                               {
                                   emit("date", ToIso(result.settings.referenceDate));
                                   emit("percent", ToPoint(result.settings.yearlyPercent));
                                   emit("skipped", std::to_string(result.skipped));
                               });
    for (Entry const& entry : result.entries)
        WriteEntry(writer, entry);
    writer.WriteBeginStructure("total");
    writer.WriteContentValue("amount", ToPoint(SumOf(result, GetAmount)));
    writer.WriteContentValue("interest", ToPoint(SumOf(result, GetInterest)));
    writer.WriteEndStructure();
    writer.WriteEndStructure();
}

void WriteRow(std::ostream& stream, Row const& row)
{
    CommaSeparatedValueWriter writer;
    for (std::wstring const& value : row)
        writer.AddValue(value);
    stream << ToDocument(writer.GetResult()) << "\r\n";
}

} // namespace

void PrintEntries(Result const& result)
{
    std::vector<Row> rows = { { L"Nummer", L"Rechnung", L"Betrag", L"Skonto bis", L"Skonto", L"F\u00e4llig", L"Bezahlt",
                                L"Verzug", L"Zinsen" } };
    for (auto const& [payment, due] : result.entries)
        rows.push_back({ payment.number, FormatGerman(payment.invoiceDate), FormatAmount(payment.amount),
                         FormatGerman(due.discountDate), FormatDiscount(due), FormatGerman(due.netDate),
                         FormatGerman(payment.paidOn), std::to_wstring(due.daysLate), FormatAmount(due.interest) });
    rows.push_back({ L"Summe",
                     {},
                     FormatAmount(SumOf(result, GetAmount)),
                     {},
                     {},
                     {},
                     {},
                     {},
                     FormatAmount(SumOf(result, GetInterest)) });
    PrintTable(rows);
}

void WriteSeparatedValues(std::filesystem::path const& path, Result const& result)
{
    ReplaceFile(
        path,
        [&](std::ostream& stream)
        {
            WriteRow(stream, { L"Nummer", L"Rechnungsdatum", L"Betrag", L"Skonto bis", L"Skonto", L"F\u00e4llig am",
                               L"Bezahlt am", L"Tage Verzug", L"Zinsen", L"1. Mahnung", L"2. Mahnung", L"3. Mahnung" });
            for (auto const& [payment, due] : result.entries)
                WriteRow(stream,
                         { payment.number, FormatGerman(payment.invoiceDate), FormatAmount(payment.amount),
                           FormatGerman(due.discountDate), FormatDiscount(due), FormatGerman(due.netDate),
                           FormatGerman(payment.paidOn), std::to_wstring(due.daysLate), FormatAmount(due.interest),
                           FormatGerman(due.dunning[0]), FormatGerman(due.dunning[1]), FormatGerman(due.dunning[2]) });
        });
}

void WriteXml(std::filesystem::path const& path, Result const& result)
{
    WriteDocument(path, [&result](XMLWriter& writer) { WriteContent(writer, result); });
}

} // namespace Example
