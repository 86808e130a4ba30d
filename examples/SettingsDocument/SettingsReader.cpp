// Reads settings. The document is described once, as a tree of elements with handlers; the library reads the file
// and calls them. A handler is registered for the format version from which it applies, so one description serves both:
//
//   version 1: <vatRate><code>D7</code><text>...</text><rate>7</rate></vatRate>     whole percent
//   version 2: <vatRate code="D7"><text>...</text><rate>70</rate></vatRate>         permille
//
// What changed got a second handler; everything else of version 1 goes on serving version 2.

#include "Document.h"
#include "Settings.h"

#include <IXMLStreamer/XMLContentElement.h>
#include <Utilities/WStringHelper.h>

#include <charconv>
#include <utility>

using namespace Vek::Framework::IXMLStreamer::Native;
using Vek::Framework::Utilities::WStringHelper;

namespace Example
{

namespace
{

// What a value of the document becomes. False refuses the document, with the place of the value.
bool Parse(std::string const& value, std::wstring& text)
{
    text = FromDocument(value);
    return true;
}

bool Parse(std::string const& value, int& number)
{
    char const* const end = value.data() + value.size();
    auto const [parsed, error] = std::from_chars(value.data(), end, number);
    return error == std::errc() && parsed == end;
}

bool ParseYesNo(std::string const& value, bool& flag)
{
    flag = WStringHelper::EqualsIgnoreCase(FromDocument(value), L"ja");
    return flag || WStringHelper::EqualsIgnoreCase(FromDocument(value), L"nein");
}

bool ParseFlag(std::string const& value, bool& flag)
{
    flag = value == "1";
    return flag || value == "0";
}

bool ParsePermille(std::string const& value, int& permille)
{
    return Parse(value, permille) && permille >= 0 && permille <= 1000;
}

bool ParsePercent(std::string const& value, int& permille)
{
    bool const isPercent = ParsePermille(value, permille) && permille <= 100;
    permille *= isPercent ? 10 : 1;
    return isPercent;
}

// An attribute whose value goes to `target`, from `version` on.
template <typename Value>
void Attribute(XMLElement& element, unsigned int version, char const* name, Value& target)
{
    element.RegisterAttribute(version, name,
                              [&target](std::string const&, std::string const& value) { return Parse(value, target); });
}

// What `parse` makes of an element's content goes to `target`, from `version` on.
template <typename Value>
void Content(XMLContentElement& element, unsigned int version, Value& target, bool (*parse)(std::string const&, Value&))
{
    element.SetOnDo(version, [&target, parse](XMLContentElement const&, std::string const& content)
                    { return parse(content, target); });
}

// A child element whose content goes to `target`.
template <typename Value>
XMLContentElement& Child(XMLStructureElement& parent, char const* name, Value& target,
                         bool (*parse)(std::string const&, Value&) = Parse)
{
    XMLContentElement& child = parent.CreateContentElement(name);
    Content(child, 1, target, parse);
    return child;
}

// A record is filled by attributes and children and moved to its list when its end tag comes. Attributes are read
// before a begin handler runs: clearing the record there would lose them.
template <typename Record>
void CollectAtEnd(XMLStructureElement& element, Record& record, std::vector<Record>& records)
{
    element.SetOnEnd(1,
                     [&record, &records](XMLStructureElement const&)
                     {
                         records.push_back(std::exchange(record, {}));
                         return true;
                     });
}

// The description, and the places where its handlers put what they read.
class SettingsReader
{
public:
    SettingsReader() { Describe(); }
    SettingsReader(SettingsReader const&) = delete;
    SettingsReader& operator=(SettingsReader const&) = delete;

    SettingsFile Read(std::filesystem::path const& path)
    {
        m_reader.SetVersion(1); // until the root element says otherwise
        ReadDocument(m_reader, path);
        return std::exchange(m_file, {});
    }

private:
    void Describe();
    void DescribePrinters(XMLStructureElement& printers);
    void DescribeMandants(XMLStructureElement& mandants);
    void DescribeVatRates(XMLStructureElement& vatRates);
    void DescribeWorkplaces(XMLStructureElement& workplaces);
    bool ChooseVersion(std::string const& text);

    XMLStreamer m_reader;
    SettingsFile m_file;
    Printer m_printer;
    Mandant m_mandant;
    VatRate m_vatRate;
    Workplace m_workplace;
};

void SettingsReader::Describe()
{
    XMLStructureElement& root = m_reader.CreateRootStructureElement("settings");
    root.RegisterAttribute(1, "version",
                           [this](std::string const&, std::string const& value) { return ChooseVersion(value); });
    Attribute(root, 1, "company", m_file.settings.company);
    DescribePrinters(root.CreateStructureElement("printers"));
    DescribeMandants(root.CreateStructureElement("mandants"));
    DescribeVatRates(root.CreateStructureElement("vatRates"));
    DescribeWorkplaces(root.CreateStructureElement("workplaces"));
    m_reader.SetOnUnknownElement(1,
                                 [this](std::string const&)
                                 {
                                     m_file.skipped.push_back(FromDocument(m_reader.GetOpenElementPath()));
                                     return true;
                                 });
}

// Handlers are chosen by the version that is set when they are due, so setting it here switches the rest of the file.
bool SettingsReader::ChooseVersion(std::string const& text)
{
    int version = 0;
    if (!Parse(text, version) || version < 1 || version > 2)
        return false;
    m_file.formatVersion = static_cast<unsigned int>(version);
    m_reader.SetVersion(m_file.formatVersion);
    return true;
}

void SettingsReader::DescribePrinters(XMLStructureElement& printers)
{
    XMLStructureElement& printer = printers.CreateStructureElement("printer");
    Child(printer, "name", m_printer.name);
    Attribute(printer, 2, "name", m_printer.name);
    Child(printer, "location", m_printer.location);
    Child(printer, "tray", m_printer.tray);

    XMLContentElement& duplex = Child(printer, "duplex", m_printer.isDuplex, ParseYesNo);
    Content(duplex, 2, m_printer.isDuplex, ParseFlag);
    CollectAtEnd(printer, m_printer, m_file.settings.printers);
}

void SettingsReader::DescribeMandants(XMLStructureElement& mandants)
{
    XMLStructureElement& mandant = mandants.CreateStructureElement("mandant");
    Child(mandant, "number", m_mandant.number);
    Attribute(mandant, 2, "number", m_mandant.number);
    Child(mandant, "name", m_mandant.name);
    Child(mandant, "city", m_mandant.city);
    Child(mandant, "currency", m_mandant.currency);
    CollectAtEnd(mandant, m_mandant, m_file.settings.mandants);
}

void SettingsReader::DescribeVatRates(XMLStructureElement& vatRates)
{
    XMLStructureElement& vatRate = vatRates.CreateStructureElement("vatRate");
    Child(vatRate, "code", m_vatRate.code);
    Attribute(vatRate, 2, "code", m_vatRate.code);
    Child(vatRate, "text", m_vatRate.text);

    XMLContentElement& rate = Child(vatRate, "rate", m_vatRate.permille, ParsePercent);
    Content(rate, 2, m_vatRate.permille, ParsePermille);
    CollectAtEnd(vatRate, m_vatRate, m_file.settings.vatRates);
}

void SettingsReader::DescribeWorkplaces(XMLStructureElement& workplaces)
{
    XMLStructureElement& workplace = workplaces.CreateStructureElement("workplace");
    Child(workplace, "name", m_workplace.name);
    Attribute(workplace, 2, "name", m_workplace.name);
    Child(workplace, "user", m_workplace.user);
    Child(workplace, "printer", m_workplace.printer);
    CollectAtEnd(workplace, m_workplace, m_file.settings.workplaces);
}

} // namespace

SettingsFile ReadSettings(std::filesystem::path const& path)
{
    return SettingsReader().Read(path);
}

} // namespace Example
