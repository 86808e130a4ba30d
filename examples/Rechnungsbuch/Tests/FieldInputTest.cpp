#include "FieldInput.h"

#include "InvoiceBook.h"
#include "InvoiceDraft.h"
#include "Sample.h"

using namespace Vek::Framework::Utilities;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

// Reads a text and answers what it is as text again.
using Field = std::function<bool(std::wstring const&, std::wstring&, InputFault&)>;

bool ReadAmountField(std::wstring const& text, std::wstring& read, InputFault& fault)
{
    Decimal amount;
    bool const isRead = TryReadAmount(text, amount, fault);
    read = FormatAmount(amount);
    return isRead;
}

bool ReadRateField(std::wstring const& text, std::wstring& read, InputFault& fault)
{
    Decimal rate;
    bool const isRead = TryReadTaxRate(text, rate, fault);
    read = FormatTaxRate(rate);
    return isRead;
}

bool ReadDateField(std::wstring const& text, std::wstring& read, InputFault& fault)
{
    VekDateEx date;
    bool const isRead = TryReadOptionalDate(text, date, fault);
    read = std::to_wstring(date.GetYear() * 10000 + date.GetMonth() * 100 + date.GetDay());
    return isRead;
}

bool ReadTermsField(std::wstring const& text, std::wstring& read, InputFault& fault)
{
    Terms terms;
    bool const isRead = TryReadTerms(text, terms, fault);
    read = FormatTerms(terms);
    return isRead;
}

bool ReadTextField(std::wstring const& text, std::wstring& read, InputFault& fault)
{
    return TryReadText(text, L"Der Kunde", read, fault);
}

} // namespace

TEST(FieldInput, TakesWhatPeopleWriteAndNamesTheFirstFault)
{
    struct Row
    {
        Field read;
        wchar_t const* text;
        wchar_t const* value; // null: refused
        std::size_t position;
        wchar_t const* part; // of the sentence
    };
    Row const rows[] = {
        { ReadAmountField, L"-1.234,5", L"-1.234,50", 0, L"" },
        { ReadAmountField, L"999999999,99", L"999.999.999,99", 0, L"" },
        { ReadAmountField, L"1.000.000.000,00", nullptr, 0, L"neun Ziffern" },
        { ReadAmountField, L"1,005", nullptr, 4, L"zwei Ziffern" },
        { ReadAmountField, L"1.234", nullptr, 5, L"Komma fehlt" },
        { ReadAmountField, L"12.50", nullptr, 2, L"Gruppen" },
        { ReadAmountField, L"12 \u20ac", nullptr, 2, L"\u201e \u201c kann" },
        { ReadAmountField, L"", nullptr, 0, L"fehlt" },
        { ReadRateField, L"20 %", L"20", 0, L"" },
        { ReadRateField, L"5,50%", L"5,5", 0, L"" },
        { ReadRateField, L"100", L"100", 0, L"" },
        { ReadRateField, L"100,01", nullptr, 0, L"0 und 100" },
        { ReadRateField, L"-1", nullptr, 0, L"0 und 100" },
        { ReadRateField, L" % ", nullptr, 0, L"kann" },
        { ReadRateField, L"%", nullptr, 0, L"fehlt" },
        { ReadDateField, L"5.3.2024", L"20240305", 0, L"" },
        { ReadDateField, L"", L"0", 0, L"" },
        { ReadDateField, L"29.2.2023", nullptr, 0, L"gibt es nicht" },
        { ReadDateField, L"5.3.24", nullptr, 4, L"vier Ziffern" },
        { ReadDateField, L"5.3.2200", nullptr, 4, L"2199" },
        { ReadDateField, L"5.3", nullptr, 3, L"vollst" },
        { ReadDateField, L"5/3/2024", nullptr, 1, L"\u201e/\u201c" },
        { ReadTermsField, L" 30  TAGE netto ", L"30 Tage", 0, L"" },
        { ReadTermsField, L"0 Tage", L"prompt", 0, L"" },
        { ReadTermsField, L"monatsultimo+1 tag", L"Monatsultimo + 1 Tag", 0, L"" },
        { ReadTermsField, L"1 Bankwerktag", L"1 Bankwerktag", 0, L"" },
        { ReadTermsField, L"1000 Tage", nullptr, 0, L"999" },
        { ReadTermsField, L"30 Wochen", nullptr, 3, L"Erlaubt" },
        { ReadTermsField, L"Monatsultimo +", nullptr, 14, L"Erlaubt" },
        { ReadTermsField, L"prompt netto", nullptr, 7, L"Erlaubt" },
        { ReadTextField, L"  Huber & Co  ", L"Huber & Co", 0, L"" },
        { ReadTextField, L"   ", nullptr, 0, L"Der Kunde fehlt." },
        { ReadTextField, L"a\nb", nullptr, 1, L"Zeilenumbr" },
        { ReadTextField, L"ab\x81", nullptr, 2, L"Steuerzeichen" },
        { ReadTextField, L"\u20ac \u0151", nullptr, 2, L"\u201e\u0151\u201c" },
        { ReadTextField, L"a\xD83D\xDE00", nullptr, 1, L"\u201e\xD83D\xDE00\u201c" },
    };
    for (Row const& row : rows)
    {
        SCOPED_TRACE(ToUtf8(std::wstring(L"\"") + row.text + L"\""));
        std::wstring value;
        InputFault fault;
        bool const isRead = row.read(row.text, value, fault);
        ASSERT_EQ(isRead, row.value != nullptr) << ToUtf8(fault.text);
        EXPECT_EQ(ToUtf8(isRead ? value : L""), ToUtf8(isRead ? row.value : L""));
        EXPECT_EQ(fault.position, row.position);
        EXPECT_NE(fault.text.find(row.part), std::wstring::npos) << ToUtf8(fault.text);
    }
}

TEST(InvoiceDraft, NamesFieldAndLineAndGivesBackWhatItWasMadeOf)
{
    InvoiceBook book;
    book.Reset(MakeSampleInvoices(c_today));
    DraftFault fault;
    for (Invoice const& invoice : book.GetInvoices())
    {
        Invoice read;
        ASSERT_TRUE(TryReadDraft(ToDraft(invoice), book, invoice.number, read, fault)) << ToUtf8(fault.fault.text);
        EXPECT_EQ(read, invoice);
    }

    InvoiceDraft draft = MakeNewDraft(book, c_today);
    EXPECT_EQ(draft.number, L"2025-011");
    EXPECT_EQ(MakeNewDraft(book, VekDateEx(1, 1, 2026)).number, L"2026-001");
    draft.customer = L"Huber";
    draft.lines = { { L"Ware", L"1,00", L"20" }, { L"Ware", L"1,00", L"20" } };
    struct Row
    {
        std::function<void(InvoiceDraft&)> spoil;
        DraftField field;
        std::size_t line;
        std::size_t position;
    };
    Row const rows[] = {
        { [](InvoiceDraft& bad) { bad.number = L"2024-118"; }, DraftField::Number, 0, 0 },
        { [](InvoiceDraft& bad) { bad.customer.clear(); }, DraftField::Customer, 0, 0 },
        { [](InvoiceDraft& bad) { bad.date.clear(); }, DraftField::Date, 0, 0 },
        { [](InvoiceDraft& bad) { bad.terms = L"bald"; }, DraftField::Terms, 0, 0 },
        { [](InvoiceDraft& bad) { bad.paidOn = L"30.3.2025"; }, DraftField::PaidOn, 0, 0 },
        { [](InvoiceDraft& bad) { bad.lines.clear(); }, DraftField::Lines, 0, 0 },
        { [](InvoiceDraft& bad) { bad.lines[1].text.clear(); }, DraftField::LineText, 1, 0 },
        { [](InvoiceDraft& bad) { bad.lines[1].net = L"1,x"; }, DraftField::LineNet, 1, 2 },
        { [](InvoiceDraft& bad) { bad.lines[0].taxRate = L"200"; }, DraftField::LineTaxRate, 0, 0 },
    };
    Invoice untouched = MakeInvoice(L"untouched");
    for (Row const& row : rows)
    {
        SCOPED_TRACE(static_cast<int>(row.field));
        InvoiceDraft bad = draft;
        row.spoil(bad);
        ASSERT_FALSE(TryReadDraft(bad, book, {}, untouched, fault));
        EXPECT_EQ(fault.field, row.field);
        EXPECT_EQ(fault.line, row.line);
        EXPECT_EQ(fault.fault.position, row.position);
        EXPECT_FALSE(fault.fault.text.empty());
    }
    EXPECT_EQ(untouched, MakeInvoice(L"untouched"));
    EXPECT_TRUE(TryReadDraft(draft, book, {}, untouched, fault));
}

} // namespace Invoicing
