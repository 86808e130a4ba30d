// The same figures twice: as a table for people, as a document for programs.

#include "Console.h"
#include "Document.h"
#include "Summary.h"
#include "Table.h"

#include <Utilities/AmountText.h>

#include <vector>

using namespace Vek::Framework::IXMLStreamer::Native;
using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

using Emitter = XMLWriter::AttributeEmitter;

void NoAttributes(Emitter const&)
{
}

std::wstring Grouped(long long count)
{
    return FormatAmount(count, AmountGrouping::FullStop, 0);
}

using Row = std::vector<std::wstring>;

Row MakeRow(std::wstring const& title, Total const& total)
{
    return { title, Grouped(total.lines), FormatAmount(total.net), FormatAmount(total.tax),
             FormatAmount(total.GetGross()) };
}

void WriteAmount(XMLWriter& writer, char const* name, Decimal const& amount)
{
    writer.WriteContentValue(name, ToDocument(amount.ToString(L'.', {})), NoAttributes);
}

void WriteTotal(XMLWriter& writer, char const* name, Total const& total, XMLWriter::AttributeWriter const& attributes)
{
    writer.WriteBeginStructure(name, attributes);
    WriteAmount(writer, "net", total.net);
    WriteAmount(writer, "tax", total.tax);
    WriteAmount(writer, "gross", total.GetGross());
    writer.WriteEndStructure();
}

void WriteTaxRate(XMLWriter& writer, int percent, Total const& total)
{
    auto const writeAttributes = [&](Emitter const& emit)
    {
        emit("percent", std::to_string(percent));
        emit("lines", std::to_string(total.lines));
    };
    WriteTotal(writer, "taxRate", total, writeAttributes);
}

void WriteContent(XMLWriter& writer, Summary const& summary)
{
    Total const grandTotal = summary.GetGrandTotal();
    auto const writeAttributes = [&](Emitter const& emit)
    {
        emit("lines", std::to_string(grandTotal.lines));
        emit("skipped", std::to_string(summary.GetSkipped()));
    };
    writer.WriteBeginStructure("invoiceSummary", writeAttributes);
    for (std::size_t rate = 0; rate < c_taxRates.size(); ++rate)
        WriteTaxRate(writer, c_taxRates[rate], summary.GetTotal(rate));
    WriteTotal(writer, "total", grandTotal, NoAttributes);
    writer.WriteEndStructure();
}

} // namespace

void PrintSummary(Summary const& summary)
{
    std::vector<Row> rows = { { L"Steuersatz", L"Zeilen", L"Netto", L"USt", L"Brutto" } };
    for (std::size_t rate = 0; rate < c_taxRates.size(); ++rate)
        rows.push_back(MakeRow(std::to_wstring(c_taxRates[rate]) + L" %", summary.GetTotal(rate)));
    rows.push_back(MakeRow(L"Summe", summary.GetGrandTotal()));
    PrintTable(rows);
    if (summary.GetSkipped() > 0)
        PrintLine(L"\u00dcbersprungene Zeilen: " + Grouped(summary.GetSkipped()));
}

void WriteSummary(std::filesystem::path const& path, Summary const& summary)
{
    WriteDocument(path, [&summary](XMLWriter& writer) { WriteContent(writer, summary); });
}

} // namespace Example
