#include "Totals.h"

#include "CsvExport.h"
#include "InvoiceRow.h"
#include "Sample.h"

#include <SysBase/VekDateText.h>
#include <SysBase/Werktage.h>
#include <Utilities/ColorContrast.h>

using namespace Vek::Framework::Utilities;
using VekSysBase::VekDateEx;

namespace Invoicing
{

TEST(Invoice, DueDateIsABankWorkingDay)
{
    struct Row
    {
        wchar_t const* terms;
        VekDateEx invoice;
        wchar_t const* due;
        char const* why;
    };
    Row const rows[] = {
        { L"prompt", { 3, 3, 2025 }, L"03.03.2025", "the day itself" },
        { L"prompt", { 1, 3, 2025 }, L"03.03.2025", "Saturday" },
        { L"14 Tage", { 10, 12, 2024 }, L"27.12.2024", "24 December is free for banks, Christmas for all" },
        { L"1 Tag netto", { 30, 4, 2025 }, L"02.05.2025", "1 May" },
        { L"2 Bankwerktage", { 17, 4, 2025 }, L"22.04.2025", "Good Friday counts, Easter does not" },
        { L"0 Bankwerktage", { 19, 4, 2025 }, L"22.04.2025", "none: the next that is one" },
        { L"Monatsultimo", { 3, 2, 2024 }, L"29.02.2024", "leap year" },
        { L"Monatsultimo + 10 Tage", { 31, 1, 2025 }, L"10.02.2025", "from the end of the invoice's own month" },
    };
    for (Row const& row : rows)
    {
        SCOPED_TRACE(row.why);
        Invoice invoice = MakeInvoice(L"1");
        InputFault fault;
        invoice.date = row.invoice;
        ASSERT_TRUE(TryReadTerms(row.terms, invoice.terms, fault)) << ToUtf8(fault.text);
        VekDateEx const due = invoice.GetDueDate();
        EXPECT_EQ(ToUtf8(VekSysBase::FormatGerman(due)), ToUtf8(row.due));
        VekDateEx after = due;
        after.AddDays(1);
        EXPECT_EQ(GetState(invoice, due), InvoiceState::Open);
        EXPECT_EQ(GetState(invoice, after), InvoiceState::Overdue);
        invoice.paidOn = after;
        EXPECT_EQ(GetState(invoice, after), InvoiceState::Paid);
    }
}

// In whole cents and hundredths of percent, rounded half away from zero once for each rate.
TEST(Totals, AreThoseOfIntegers)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<long long> cents(-99'999'999'999, 99'999'999'999);
    int const rates[] = { 0, 550, 1000, 1300, 1900, 2000, 10000 };
    Totals sum;
    long long sumGross = 0;
    for (int round = 0; round < 300; ++round)
    {
        Invoice invoice;
        std::map<int, long long> nets;
        for (auto count = random() % 6; count > 0; --count)
        {
            int const rate = rates[random() % std::size(rates)];
            long long const net = random() % 2 == 0 ? cents(random) : cents(random) % 1000;
            nets[rate] += net;
            invoice.lines.push_back({ L"x", Decimal(net, -2), Decimal(rate, -2) });
        }
        Totals const totals = ComputeTotals(invoice);
        ASSERT_EQ(totals.rates.size(), nets.size());
        long long net = 0;
        long long tax = 0;
        std::size_t index = 0;
        for (auto const& [rate, netOfRate] : nets)
        {
            long long const product = netOfRate * rate; // below 2^63: at most 5e11 * 1e4
            long long const taxOfRate = (product + (product < 0 ? -5000 : 5000)) / 10000;
            TaxSum const& found = totals.rates[index++];
            ASSERT_EQ(found.rate, Decimal(rate, -2));
            ASSERT_EQ(found.net, Decimal(netOfRate, -2));
            ASSERT_EQ(found.tax, Decimal(taxOfRate, -2)) << netOfRate << " at " << rate;
            net += netOfRate;
            tax += taxOfRate;
        }
        ASSERT_EQ(totals.gross, Decimal(net + tax, -2));
        sum.Add(totals);
        sumGross += net + tax;
        ASSERT_EQ(sum.gross, Decimal(sumGross, -2));
    }
    Decimal ofRates;
    for (TaxSum const& rate : sum.rates)
        ofRates += rate.net + rate.tax;
    EXPECT_EQ(ofRates, sum.gross);
    EXPECT_EQ(sum.net + sum.tax, sum.gross);
}

TEST(InvoiceRow, OverdueStandsOutAndAllCanBeRead)
{
    for (bool const isSelected : { false, true })
    {
        RowColors const& overdue = GetRowColors(InvoiceState::Overdue, isSelected);
        for (InvoiceState const state : { InvoiceState::Open, InvoiceState::Overdue, InvoiceState::Paid })
        {
            RowColors const& colors = GetRowColors(state, isSelected);
            EXPECT_GE(GetContrast(colors.background, colors.text), 4.5);
            EXPECT_EQ(colors.background == overdue.background, state == InvoiceState::Overdue);
            EXPECT_FALSE(colors.background == GetRowColors(state, !isSelected).background);
        }
    }
    Invoice invoice = MakeInvoice(L"7");
    invoice.terms.days = 0;
    VekDateEx const tomorrow(1, 4, 2025);
    EXPECT_EQ(ToUtf8(MakeRow(invoice, tomorrow).GetText(InvoiceColumn::State)), "\u00fcberf\u00e4llig seit 1 Tag");
    EXPECT_EQ(ToUtf8(MakeRow(invoice, c_today).GetText(InvoiceColumn::State)), "offen");
}

TEST(CsvExport, ProtectsSeparatorsAndIsWindows1252)
{
    Invoice invoice = MakeInvoice(L"1;2");
    invoice.customer = L"M\u00fcller \\ S\u00f6hne \u20ac";
    std::string const csv = ComposeCsv({ &invoice }, c_today);
    EXPECT_EQ(csv.substr(csv.find('\n') + 1), "1\\;2;M\xFCller \\\\ S\xF6hne \x80;31.03.2025;30 Tage;30.04.2025;1,00;"
                                              "0,20;1,20;;offen;\r\n");
}

} // namespace Invoicing
