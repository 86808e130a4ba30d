#include "BookDocument.h"

#include "DocumentValues.h"

#include <Exceptions/ArgumentException.h>
#include <IXMLStreamer/XMLWriter.h>
#include <Utilities/WStringHelper.h>

using namespace Vek::Framework::IXMLStreamer::Native;
using Vek::Framework::Utilities::WStringHelper;

namespace Invoicing
{

namespace
{

using Emitter = XMLWriter::AttributeEmitter;

std::string ToBytes(std::wstring const& text)
{
    std::string bytes;
    unsigned long long position = 0;
    if (!WStringHelper::TryGetWindows1252FromUTF16(text, bytes, position))
        throw Vek::ArgumentException();
    return bytes;
}

void EmitHead(Emitter const& emit, Invoice const& invoice)
{
    emit("number", ToBytes(invoice.number));
    emit("customer", ToBytes(invoice.customer));
    emit("date", ToBytes(FormatStoredDate(invoice.date)));
    emit("terms", ToBytes(FormatStoredBasis(invoice.terms.basis)));
    emit("days", std::to_string(invoice.terms.days));
    if (invoice.IsPaid())
        emit("paidOn", ToBytes(FormatStoredDate(invoice.paidOn)));
}

void WriteInvoice(XMLWriter& writer, Invoice const& invoice)
{
    writer.WriteBeginStructure("invoice", [&](Emitter const& emit) { EmitHead(emit, invoice); });
    for (InvoiceLine const& line : invoice.lines)
        writer.WriteContentValue("line", ToBytes(line.text),
                                 [&](Emitter const& emit)
                                 {
                                     emit("net", ToBytes(FormatStoredAmount(line.net)));
                                     emit("taxRate", ToBytes(FormatStoredRate(line.taxRate)));
                                 });
    writer.WriteEndStructure();
}

} // namespace

bool BookDocument::TryWrite(std::ostream& stream, std::vector<Invoice> const& invoices)
{
    // The writer remembers its first failure and so does the stream: asking at the end is enough.
    XMLWriter writer;
    writer.StartWriting(stream, true);
    writer.WriteBeginStructure("invoiceBook", [](Emitter const& emit) { emit("version", std::to_string(c_version)); });
    for (Invoice const& invoice : invoices)
        WriteInvoice(writer, invoice);
    writer.WriteEndStructure();
    return writer.FinishWriting() && stream.flush().good();
}

} // namespace Invoicing
