// Writes settings, always in the newest format. The writer escapes what needs it and indents by tabs.

#include "Document.h"
#include "Settings.h"

using namespace Vek::Framework::IXMLStreamer::Native;

namespace Example
{

namespace
{

using Emitter = std::function<void(std::string const& name, std::string const& value)>;

void NoAttributes(Emitter const&)
{
}

void WriteText(XMLWriter& writer, char const* name, std::wstring const& text)
{
    writer.WriteContentValue(name, ToDocument(text), NoAttributes);
}

void WritePrinter(XMLWriter& writer, Printer const& printer)
{
    writer.WriteBeginStructure("printer", [&printer](Emitter const& emit) { emit("name", ToDocument(printer.name)); });
    WriteText(writer, "location", printer.location);
    writer.WriteContentValue("tray", printer.tray, NoAttributes);
    writer.WriteContentValue("duplex", printer.isDuplex, NoAttributes);
    writer.WriteEndStructure();
}

void WriteMandant(XMLWriter& writer, Mandant const& mandant)
{
    writer.WriteBeginStructure("mandant",
                               [&mandant](Emitter const& emit) { emit("number", std::to_string(mandant.number)); });
    WriteText(writer, "name", mandant.name);
    WriteText(writer, "city", mandant.city);
    WriteText(writer, "currency", mandant.currency);
    writer.WriteEndStructure();
}

void WriteVatRate(XMLWriter& writer, VatRate const& vatRate)
{
    writer.WriteBeginStructure("vatRate", [&vatRate](Emitter const& emit) { emit("code", ToDocument(vatRate.code)); });
    WriteText(writer, "text", vatRate.text);
    writer.WriteContentValue("rate", vatRate.permille, NoAttributes);
    writer.WriteEndStructure();
}

void WriteWorkplace(XMLWriter& writer, Workplace const& workplace)
{
    writer.WriteBeginStructure("workplace",
                               [&workplace](Emitter const& emit) { emit("name", ToDocument(workplace.name)); });
    WriteText(writer, "user", workplace.user);
    WriteText(writer, "printer", workplace.printer);
    writer.WriteEndStructure();
}

template <typename Record>
void WriteList(XMLWriter& writer, char const* name, std::vector<Record> const& records,
               void (*write)(XMLWriter&, Record const&))
{
    writer.WriteBeginStructure(name, NoAttributes);
    for (Record const& record : records)
        write(writer, record);
    writer.WriteEndStructure();
}

} // namespace

void WriteSettings(std::filesystem::path const& path, Settings const& settings)
{
    WriteDocument(path,
                  [&settings](XMLWriter& writer)
                  {
                      writer.WriteBeginStructure("settings",
                                                 [&settings](Emitter const& emit)
                                                 {
                                                     emit("version",
                                                          "2"); // first, since it decides how the rest is read
                                                     emit("company", ToDocument(settings.company));
                                                 });
                      WriteList(writer, "printers", settings.printers, WritePrinter);
                      WriteList(writer, "mandants", settings.mandants, WriteMandant);
                      WriteList(writer, "vatRates", settings.vatRates, WriteVatRate);
                      WriteList(writer, "workplaces", settings.workplaces, WriteWorkplace);
                      writer.WriteEndStructure();
                  });
}

} // namespace Example
