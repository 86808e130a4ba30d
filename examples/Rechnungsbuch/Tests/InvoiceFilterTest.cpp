#include "InvoiceFilter.h"

#include "Sample.h"

namespace Invoicing
{

namespace
{

// The serial numbers that the filter takes: "118 1 2".
std::string Choose(InvoiceFilter const& filter)
{
    std::ostringstream chosen;
    char const* separator = "";
    for (Invoice const& invoice : MakeSampleInvoices(c_today))
        if (filter(invoice, c_today))
            chosen << std::exchange(separator, " ") << std::stoi(invoice.number.substr(5));
    return chosen.str();
}

} // namespace

TEST(InvoiceFilter, TakesWhatTheLineSays)
{
    struct Row
    {
        wchar_t const* text;
        char const* chosen;
    };
    Row const rows[] = {
        { L"", "118 119 120 1 2 3 4 5 6 7 8 9 10" },
        { L"Kunde huber", "118 3 7" },
        { L"KUNDE \"m\u00dcller & S\"", "119 5" },
        { L"Kunde = \"weingut thaler\"", "2 10" },
        { L"Kunde = thaler", "" },
        { L"Nummer 2024", "118 119 120" },
        { L"Nummer=2024-118", "118" },
        { L"Nummer <> 2024-118 und Nummer 2024", "119 120" },
        { L"Betrag > 1.000", "119 120 6" },
        { L"Betrag >= 1.024,00 und Betrag<1517,40", "120" },
        { L"Betrag = 288", "3" },
        { L"Betrag <= 260,00", "4 7" },
        { L"Betrag <> 288 und Datum am 31.1.2025", "" },
        { L"\u00fcberf\u00e4llig", "2 5 8" },
        { L"ueberfaellig oder f\u00c4llig vor 1.1.2025", "118 119 2 5 8" },
        { L"offen und nicht \u00fcberf\u00e4llig", "6 7 9 10" },
        { L"bezahlt", "118 119 120 1 3 4" },
        { L"bezahlt ab 3.2.2025 und bezahlt bis 6.2.2025", "1 4" },
        { L"nicht bezahlt nach 1.1.2025 und bezahlt", "118" }, // 119 and 120 were paid in January
        { L"\"miete\" und (Betrag < 260 oder Datum nach 31.1.2025)", "7" },
        { L"Kunde Huber und Betrag > 300 oder \u00fcberf\u00e4llig und Kunde \"M\u00fcller\"", "118 5" },
        { L"\tKunde\tHuber\n", "118 3 7" },
    };
    for (Row const& row : rows)
    {
        SCOPED_TRACE(ToUtf8(row.text));
        InvoiceFilter filter;
        InputFault fault;
        ASSERT_TRUE(TryReadFilter(row.text, filter, fault)) << fault.position << ToUtf8(fault.text);
        EXPECT_EQ(Choose(filter), row.chosen);
    }
}

TEST(InvoiceFilter, NamesThePlaceOfTheFirstFault)
{
    struct Row
    {
        std::wstring text;
        std::size_t position;
        wchar_t const* part;
    };
    Row const rows[] = {
        { L"Kundin Huber", 0, L"Bedingung" },
        { L"offen Kunde Huber", 6, L"\u201eund\u201c oder \u201eoder\u201c" },
        { L"offen und", 9, L"Bedingung" },
        { L"\t offen  und  )", 14, L"Bedingung" },
        { L"(offen oder bezahlt", 19, L"Klammer" },
        { L"offen)", 5, L"\u201eund\u201c" },
        { L"Kunde", 5, L"Text" },
        { L"Kunde = \"\"", 9, L"Text" },
        { L"Kunde \"Hub", 10, L"Anf\u00fchrungszeichen" },
        { L"offen \"x y\"", 7, L"\u201eund\u201c" },
        { L"Betrag 5", 7, L"=, <>" },
        { L"Betrag > viel", 9, L"\u201ev\u201c" },
        { L"Betrag > 1.00,5", 10, L"Gruppen" },
        { L"Betrag > 12,345", 14, L"zwei Ziffern" },
        { L"f\u00e4llig", 6, L"Datum" },
        { L"f\u00e4llig vor 31.2.2025", 11, L"Tag gibt es nicht" },
        { L"Datum am", 8, L"Datum" },
        { L"Kunde \u00e4\u03b1", 7, L"Zeichen" },
        { std::wstring(101, L'('), 100, L"verschachtelt" },
    };
    for (Row const& row : rows)
    {
        SCOPED_TRACE(ToUtf8(row.text));
        InvoiceFilter filter;
        InputFault fault;
        ASSERT_FALSE(TryReadFilter(row.text, filter, fault));
        EXPECT_EQ(fault.position, row.position) << ToUtf8(fault.text);
        EXPECT_NE(fault.text.find(row.part), std::wstring::npos) << ToUtf8(fault.text);
        EXPECT_FALSE(filter);
    }
}

} // namespace Invoicing
