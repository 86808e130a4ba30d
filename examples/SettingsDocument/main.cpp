// A tour through reading and writing documents. Read this file first, then SettingsReader.cpp.
//
//   SettingsDocument [data folder [file to write [account chart]]]
//       reads settings in two formats, changes them, writes them, reads them again; reads an account chart
//       that another program made; shows what a broken document gives.
//   SettingsDocument --read FILE
//       reads one settings file and prints what it holds.
//
// The exit code is 0, or 1 after an error, which is then told on the standard error stream.

#include "AccountChart.h"
#include "Console.h"
#include "Document.h"
#include "Program.h"
#include "Settings.h"

#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <iostream>

using namespace Example;
using Vek::Framework::Utilities::WStringHelper;

namespace
{

// What the tour reads and writes unless the command line says otherwise; meant for a start in the root of the sources.
struct TourFiles
{
    std::filesystem::path data = "examples/data";
    std::filesystem::path output = "build/settings-changed.xml";
    std::filesystem::path accounts = "/usr/share/gnucash/accounts/de_AT/acctchrt_ekr2017.gnucash-xea";
};

// Ends with a space of its own, so that columns never touch.
std::wstring Column(std::wstring const& text, std::size_t width)
{
    return text + std::wstring(std::max(width, text.size()) - text.size() + 1, L' ');
}

// Users type names as they like, so a reference is found in any case, umlauts included.
Printer const* FindPrinter(Settings const& settings, std::wstring const& name)
{
    auto const isNamed = [&name](Printer const& printer)
    { return WStringHelper::EqualsIgnoreCase(printer.name, name); };
    auto const found = std::find_if(settings.printers.begin(), settings.printers.end(), isNamed);
    return found == settings.printers.end() ? nullptr : &*found;
}

std::wstring Percent(VatRate const& rate)
{
    return std::to_wstring(rate.permille / 10) + L"," + std::to_wstring(rate.permille % 10) + L" %";
}

void PrintWorkplaces(Settings const& settings)
{
    PrintLine(L"  " + Column(L"workplace", 14) + Column(L"user", 33) + Column(L"printer", 27) + Column(L"tray", 4) +
              L"duplex");
    for (Workplace const& workplace : settings.workplaces)
    {
        std::wstring const start = L"  " + Column(workplace.name, 14) + Column(workplace.user, 33);
        if (Printer const* const printer = FindPrinter(settings, workplace.printer))
            PrintLine(start + Column(printer->name, 27) + Column(std::to_wstring(printer->tray), 4) +
                      (printer->isDuplex ? L"yes" : L"no"));
        else
            PrintLine(start + L"unknown: " + workplace.printer);
    }
}

void PrintSettings(SettingsFile const& file)
{
    Settings const& settings = file.settings;
    PrintLine(settings.company + L" (format version " + std::to_wstring(file.formatVersion) + L")");
    PrintWorkplaces(settings);
    std::wstring rates;
    for (VatRate const& rate : settings.vatRates)
        rates += L"  " + rate.code + L": " + Percent(rate);
    PrintLine(L"  VAT" + rates);
    PrintLine(L"  " + std::to_wstring(settings.printers.size()) + L" printers, " +
              std::to_wstring(settings.mandants.size()) + L" mandants, " + std::to_wstring(settings.vatRates.size()) +
              L" VAT rates, " + std::to_wstring(settings.workplaces.size()) + L" workplaces");
    for (std::wstring const& path : file.skipped)
        PrintLine(L"  skipped, since this program does not know it: " + path);
    PrintLine(L"");
}

// Values with everything that a document must escape: quotes, brackets, ampersands, line feeds, umlauts, the euro sign.
void ChangeSettings(Settings& settings)
{
    settings.company = L"M\u00fcller \"K\u00f6ln\" & S\u00f6hne <Gro\u00dfhandel>";
    for (VatRate& rate : settings.vatRates)
        rate.permille += rate.permille == 190 ? -30 : 0; // 19 % was 16 % for the second half of 2020
    settings.printers.push_back({ L"Kasse \u20ac", L"Empore,\n\u00fcber der 'Treppe'", 1, false });
    settings.workplaces.push_back({ L"KASSE-03", L"Aushilfe", L"KASSE \u20ac" });
}

// Writes the settings, reads them again and compares every value.
void ShowRoundTrip(Settings settings, std::filesystem::path const& output)
{
    ChangeSettings(settings);
    WriteSettings(output, settings);
    SettingsFile const again = ReadSettings(output);
    if (again.settings != settings)
        throw DocumentError("the settings read again differ from those written");
    PrintLine(L"Changed, written in format version 2 and read again; every value is the same:");
    PrintSettings(again);
}

// A document that is not as described never throws inside the library: the reader answers false and says what is
// wrong and where, from which ReadDocument makes the text of its InvalidDocument.
void ShowBrokenDocument(std::filesystem::path const& path)
{
    try
    {
        ReadSettings(path);
    }
    catch (InvalidDocument const& error)
    {
        std::cout << error.what() << '\n';
        return;
    }
    throw DocumentError("the broken document was read without an error");
}

void ShowTour(TourFiles const& files)
{
    SettingsFile const version1 = ReadSettings(files.data / "settings-v1.xml");
    PrintSettings(version1);
    PrintSettings(ReadSettings(files.data / "settings-v2.xml"));
    ShowRoundTrip(version1.settings, files.output);
    PrintAccountTree(ReadAccounts(files.accounts));
    PrintLine(L"");
    ShowBrokenDocument(files.data / "settings-broken.xml");
}

char const* const c_help = R"(SettingsDocument [data folder [file to write [account chart]]]
    reads settings in two formats, changes them, writes them, reads them again;
    reads an account chart that another program made; shows what a broken
    document gives. Without arguments: start it in the root of the sources.
SettingsDocument --read FILE
    reads one settings file and prints what it holds.
SettingsDocument --help
)";

int Run(std::vector<std::wstring> const& arguments)
{
    bool const isReading = !arguments.empty() && arguments[0] == L"--read";
    if (arguments.size() > 3 || (isReading && arguments.size() != 2))
        throw DocumentError("usage: SettingsDocument [data folder [file to write [account chart]]] | --read FILE | "
                            "--help");
    if (isReading)
    {
        PrintSettings(ReadSettings(ToPath(arguments[1])));
        return 0;
    }
    TourFiles files;
    std::filesystem::path* const targets[] = { &files.data, &files.output, &files.accounts };
    for (std::size_t index = 0; index < arguments.size(); ++index)
        *targets[index] = ToPath(arguments[index]);
    ShowTour(files);
    return 0;
}

} // namespace

int main()
{
    return RunProgram("SettingsDocument", c_help, Run);
}
