// Reads a book. The document is described once, as a tree of elements with handlers, and that serves both format
// versions: what differs has a handler for each. A handler that refuses a value keeps the reason; the place is known to
// the reader.

#include "BookDocument.h"

#include "DocumentValues.h"
#include "InvoiceCheck.h"

#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>
#include <Utilities/WStringHelper.h>

#include <initializer_list>
#include <set>
#include <utility>

using namespace Vek::Framework::IXMLStreamer::Native;
using Vek::Framework::Utilities::WStringHelper;

namespace Invoicing
{

namespace
{

std::wstring Widen(std::string const& bytes)
{
    return WStringHelper::GetUTF16FromWindows1252(bytes);
}

class BookReader
{
public:
    BookReader();
    BookReader(BookReader const&) = delete;
    BookReader& operator=(BookReader const&) = delete;

    bool TryRead(std::istream& stream, std::vector<Invoice>& invoices, DocumentFault& fault);

private:
    using Code = DocumentFault::Code;
    template <class Value>
    using TryReadValue = bool (*)(std::wstring const& text, Value& value, std::wstring& message);

    void DescribeInvoice(XMLStructureElement& invoice);
    void DescribeLine(XMLContentElement& line);
    template <class Value>
    void Attribute(XMLElement& element, unsigned int version, char const* name, TryReadValue<Value> tryRead,
                   Value& target);
    void RefuseOtherAttributes(XMLElement& element);

    bool ChooseVersion(std::string const& text);
    bool AddLine(std::string const& content);
    bool AddInvoice();
    bool RequireAttributes(std::initializer_list<char const*> names);
    bool Refuse(Code code, std::wstring const& text);
    DocumentFault Explain(bool isReadable) const;

    XMLStreamer m_streamer;
    Invoice m_invoice;
    InvoiceLine m_line;
    std::set<std::string> m_attributes; // of the element whose start tag is being read
    std::set<std::wstring> m_numbers;   // in lower case
    std::vector<Invoice> m_invoices;
    DocumentFault m_fault; // code and text of a value that was refused
};

BookReader::BookReader()
{
    m_streamer.SetSyntax(XMLStreamer::Strict);
    m_streamer.SetVersion(1); // until the root element says otherwise
    XMLStructureElement& root = m_streamer.CreateRootStructureElement("invoiceBook");
    root.RegisterAttribute(1, "version",
                           [this](std::string const&, std::string const& value) { return ChooseVersion(value); });
    RefuseOtherAttributes(root);
    root.SetOnBegin(1, [this](XMLStructureElement const&) { return RequireAttributes({ "version" }); });
    DescribeInvoice(root.CreateStructureElement("invoice"));
    m_streamer.SetOnUnknownElement(1, [this](std::string const& name)
                                   { return Refuse(Code::UnknownContent, L"Unbekanntes Element: " + Widen(name)); });
}

void BookReader::DescribeInvoice(XMLStructureElement& invoice)
{
    Attribute(invoice, 1, "number", TryReadStoredText, m_invoice.number);
    Attribute(invoice, 1, "customer", TryReadStoredText, m_invoice.customer);
    Attribute(invoice, 1, "date", TryReadStoredDate, m_invoice.date);
    Attribute(invoice, 1, "terms", TryReadStoredBasis, m_invoice.terms.basis);
    Attribute(invoice, 1, "days", TryReadStoredDays, m_invoice.terms.days);
    invoice.RegisterAttribute(
        1, "paidOn",
        [this](std::string const&, std::string const&)
        { return Refuse(Code::UnknownContent, L"Das Attribut paidOn gibt es erst in der Formatversion 2."); });
    Attribute(invoice, 2, "paidOn", TryReadStoredDate, m_invoice.paidOn);
    RefuseOtherAttributes(invoice);
    invoice.SetOnBegin(1,
                       [this](XMLStructureElement const&) {
                           return RequireAttributes({ "number", "customer", "date", "terms", "days" });
                       });
    DescribeLine(invoice.CreateContentElement("line"));
    invoice.SetOnEnd(1, [this](XMLStructureElement const&) { return AddInvoice(); });
}

void BookReader::DescribeLine(XMLContentElement& line)
{
    Attribute(line, 1, "net", TryReadStoredAmount, m_line.net);
    Attribute(line, 1, "taxRate", TryReadStoredRate, m_line.taxRate);
    RefuseOtherAttributes(line);
    line.SetOnDo(1, [this](XMLContentElement const&, std::string const& content) { return AddLine(content); });
}

template <class Value>
void BookReader::Attribute(XMLElement& element, unsigned int version, char const* name, TryReadValue<Value> tryRead,
                           Value& target)
{
    element.RegisterAttribute(version, name,
                              [this, tryRead, &target](std::string const& attribute, std::string const& value)
                              {
                                  std::wstring message;
                                  m_attributes.insert(attribute);
                                  return tryRead(Widen(value), target, message) || Refuse(Code::InvalidValue, message);
                              });
}

void BookReader::RefuseOtherAttributes(XMLElement& element)
{
    element.RegisterUnspecifiedAttributes(
        1, [this](std::string const& name, std::string const&)
        { return Refuse(Code::UnknownContent, L"Unbekanntes Attribut: " + Widen(name)); });
}

// Handlers are chosen by the version that is set when they are due: this switches the rest of the document.
bool BookReader::ChooseVersion(std::string const& text)
{
    if (text != "1" && text != "2")
        return Refuse(Code::UnknownVersion, L"Unbekannte Formatversion: " + Widen(text));
    m_attributes.insert("version");
    m_streamer.SetVersion(text == "1" ? 1 : 2);
    return true;
}

bool BookReader::AddLine(std::string const& content)
{
    std::wstring message;
    if (!RequireAttributes({ "net", "taxRate" }))
        return false;
    if (!TryReadStoredText(Widen(content), m_line.text, message))
        return Refuse(Code::InvalidValue, message);
    m_invoice.lines.push_back(std::exchange(m_line, {}));
    return true;
}

bool BookReader::AddInvoice()
{
    std::wstring message;
    if (!CheckInvoice(m_invoice, message))
        return Refuse(m_invoice.lines.empty() ? Code::MissingValue : Code::InvalidValue, message);
    if (!m_numbers.insert(WStringHelper::ToLowerCase(m_invoice.number)).second)
        return Refuse(Code::DuplicateNumber,
                      L"Die Rechnungsnummer \u201e" + m_invoice.number + L"\u201c kommt zweimal vor.");
    m_invoices.push_back(std::exchange(m_invoice, {}));
    return true;
}

bool BookReader::RequireAttributes(std::initializer_list<char const*> names)
{
    for (char const* const name : names)
        if (!m_attributes.contains(name))
            return Refuse(Code::MissingValue, L"Das Attribut " + Widen(name) + L" fehlt.");
    m_attributes.clear();
    return true;
}

bool BookReader::Refuse(Code code, std::wstring const& text)
{
    m_fault.code = code;
    m_fault.text = text;
    return false;
}

bool BookReader::TryRead(std::istream& stream, std::vector<Invoice>& invoices, DocumentFault& fault)
{
    bool const isComplete = m_streamer.ProcessSource(stream);
    if (!isComplete || stream.bad())
    {
        fault = Explain(!stream.bad());
        return false;
    }
    invoices = std::move(m_invoices);
    return true;
}

DocumentFault BookReader::Explain(bool isReadable) const
{
    if (!isReadable)
        return { Code::NotReadable, L"Die Datei kann nicht bis zum Ende gelesen werden.", -1, -1, {} };
    DocumentFault fault = m_fault;
    if (fault.code == 0)
    {
        fault.code = m_streamer.GetError().GetErrorCode();
        fault.text = Widen(m_streamer.GetError().GetDescription());
    }
    fault.line = m_streamer.GetParserResult().line;
    fault.column = m_streamer.GetParserResult().column;
    fault.path = Widen(m_streamer.GetOpenElementPath());
    return fault;
}

} // namespace

bool BookDocument::TryRead(std::istream& stream, std::vector<Invoice>& invoices, DocumentFault& fault)
{
    return BookReader().TryRead(stream, invoices, fault);
}

std::wstring FormatDocumentFault(std::wstring const& documentName, DocumentFault const& fault)
{
    std::wstring text = L"\u201e" + documentName + L"\u201c kann nicht gelesen werden.\n" + fault.text + L" (Fehler " +
                        std::to_wstring(fault.code) + L")";
    if (fault.line >= 0)
        text += L"\nZeile " + std::to_wstring(fault.line) + L", Spalte " + std::to_wstring(fault.column) + L", in " +
                fault.path;
    return text;
}

} // namespace Invoicing
