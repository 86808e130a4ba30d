#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Example
{

struct Printer
{
    std::wstring name;
    std::wstring location;
    int tray = 0; ///< from 1; 0 lets the driver choose
    bool isDuplex = false;
    bool operator==(Printer const&) const = default;
};

/// A company that keeps its books with the program.
struct Mandant
{
    int number = 0;
    std::wstring name;
    std::wstring city;
    std::wstring currency;
    bool operator==(Mandant const&) const = default;
};

struct VatRate
{
    std::wstring code;
    std::wstring text;
    int permille = 0;
    bool operator==(VatRate const&) const = default;
};

struct Workplace
{
    std::wstring name;
    std::wstring user;    ///< empty when everybody may use it
    std::wstring printer; ///< a printer's name, in any case
    bool operator==(Workplace const&) const = default;
};

struct Settings
{
    std::wstring company;
    std::vector<Printer> printers;
    std::vector<Mandant> mandants;
    std::vector<VatRate> vatRates;
    std::vector<Workplace> workplaces;
    bool operator==(Settings const&) const = default;
};

/// What a settings file held, and what in it nobody here knows.
struct SettingsFile
{
    unsigned int formatVersion = 1;
    Settings settings;
    std::vector<std::wstring> skipped; ///< paths such as "/settings/kiosk"
};

/// Reads format version 1 or 2. Throws DocumentError.
SettingsFile ReadSettings(std::filesystem::path const& path);

/// Writes format version 2 and replaces a file at `path`. Throws DocumentError; `path` is as before then.
void WriteSettings(std::filesystem::path const& path, Settings const& settings);

} // namespace Example
