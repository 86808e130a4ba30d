#include "BookDocument.h"

#include "Sample.h"

#include <streambuf>

namespace Invoicing
{

namespace
{

/// Gives so many bytes of a text and fails then, as a disk may.
class FailingSource : public std::streambuf
{
public:
    FailingSource(std::string& text, std::size_t size) { setg(text.data(), text.data(), text.data() + size); }

protected:
    int_type underflow() override { throw std::ios_base::failure("unreadable"); }
};

std::string const c_start = "<?xml version=\"1.0\"?>\n<invoiceBook version=\"2\">\n";
std::string const c_head =
    "<invoice number=\"1\" customer=\"Huber\" date=\"2025-03-31\" terms=\"monthEnd\" days=\"10\"";
std::string const c_line = "<line net=\"1.00\" taxRate=\"20\">Ware</line>";
std::string const c_end = "</invoice>\n</invoiceBook>\n";

bool TryRead(std::string const& text, std::vector<Invoice>& invoices, DocumentFault& fault)
{
    std::istringstream stream(text);
    return BookDocument::TryRead(stream, invoices, fault);
}

} // namespace

TEST(BookDocument, GivesBackEveryInvoice)
{
    std::vector<Invoice> invoices = MakeSampleInvoices(c_today);
    std::wstring all; // that a text may hold
    for (wchar_t unit = L'!'; unit <= L'\u00ff'; ++unit)
        if (unit < 0x7F || unit > 0x9F)
            all += unit;
    all += L"\u20ac\u201e\u0160\u2122";
    Invoice odd = MakeInvoice(all);
    odd.customer = all;
    odd.lines = { { all, Amount(L"-999999999,99"), Amount(L"5,50") }, { L"0", Amount(L"0,00"), Amount(L"0,00") } };
    invoices.push_back(odd);
    std::vector<Invoice> read;
    DocumentFault fault;
    ASSERT_TRUE(TryRead(Write(invoices), read, fault)) << ToUtf8(FormatDocumentFault(L"x", fault));
    EXPECT_EQ(read, invoices);
    EXPECT_EQ(Write(read), Write(invoices));
    ASSERT_TRUE(TryRead(Write({}), read, fault));
    EXPECT_TRUE(read.empty());

    odd.customer = L"\u0151";
    std::ostringstream stream;
    EXPECT_THROW(BookDocument::TryWrite(stream, { odd }), Vek::ArgumentException);
}

TEST(BookDocument, ReadsVersion1WhichKnowsNoPayments)
{
    std::string text = c_start + c_head + ">" + c_line + c_end;
    text.replace(text.find("\"2\""), 3, "\"1\"");
    std::vector<Invoice> invoices;
    DocumentFault fault;
    ASSERT_TRUE(TryRead(text, invoices, fault)) << ToUtf8(fault.text);
    ASSERT_EQ(invoices.size(), 1U);
    EXPECT_FALSE(invoices[0].IsPaid());
    EXPECT_EQ(invoices[0].terms, (Terms{ Terms::Basis::MonthEnd, 10 }));
    EXPECT_NE(Write(invoices).find("<invoiceBook version=\"2\">"), std::string::npos);
    text.insert(text.find(" terms="), " paidOn=\"2025-03-31\"");
    ASSERT_FALSE(TryRead(text, invoices, fault));
    EXPECT_EQ(fault.code, DocumentFault::UnknownContent);
}

TEST(BookDocument, RefusesWithCodeTextAndPlace)
{
    struct Row
    {
        std::string text;
        unsigned int code;
        int line;
        wchar_t const* part;
        wchar_t const* path;
    };
    auto const withHead = [](std::string const& head) { return c_start + head + ">" + c_line + c_end; };
    auto const withLine = [](std::string const& line) { return c_start + c_head + ">\n" + line + c_end; };
    auto const replaced = [](std::string text, std::string const& from, std::string const& to)
    { return text.replace(text.find(from), from.size(), to); };
    std::string const good = withHead(c_head);
    wchar_t const* const book = L"/invoiceBook";
    wchar_t const* const invoice = L"/invoiceBook/invoice";
    wchar_t const* const line = L"/invoiceBook/invoice/line";
    Row const rows[] = {
        { "", 6, 1, L"", L"/" },
        { "<?xml version=\"1.0\"?>\n<other/>", 3, 2, L"", L"/" },
        { good + "x", 12, 5, L"", L"/" },
        { replaced(good, "\n</invoiceBook>", "</invoice></invoiceBook>"), 1, 3, L"", book },
        { replaced(good, "\"2\"", "\"3\""), DocumentFault::UnknownVersion, 2, L"Formatversion: 3", book },
        { replaced(good, " version=\"2\"", ""), DocumentFault::MissingValue, 2, L"version fehlt", book },
        { replaced(good, "<line", "<item"), DocumentFault::UnknownContent, 3, L"item", L"/invoiceBook/invoice/item" },
        { withHead(c_head + " vip=\"1\""), DocumentFault::UnknownContent, 3, L"vip", invoice },
        { withHead(c_head + " days=\"10\""), 12, 3, L"", invoice },
        { withHead(replaced(c_head, " customer=\"Huber\"", "")), DocumentFault::MissingValue, 3, L"customer", invoice },
        { withHead(replaced(c_head, "Huber", " ")), DocumentFault::InvalidValue, 3, L"Text fehlt", invoice },
        { withHead(replaced(c_head, "Huber", "a&#10;b")), DocumentFault::InvalidValue, 3, L"Zeilenumbr", invoice },
        { withHead(replaced(c_head, "03-31", "02-30")), DocumentFault::InvalidValue, 3, L"2025-02-30", invoice },
        { withHead(replaced(c_head, "monthEnd", "later")), DocumentFault::InvalidValue, 3, L"later", invoice },
        { withHead(replaced(c_head, "\"10\"", "\"010\"")), DocumentFault::InvalidValue, 3, L"010", invoice },
        { withHead(c_head + " paidOn=\"\""), DocumentFault::InvalidValue, 3, L"Datum", invoice },
        { withHead(c_head + " paidOn=\"2025-03-30\""), DocumentFault::InvalidValue, 3, L"vor ihrem Datum", invoice },
        { withLine(""), DocumentFault::MissingValue, 4, L"mindestens eine Zeile", invoice },
        { withLine("<line taxRate=\"20\">x</line>"), DocumentFault::MissingValue, 4, L"net", line },
        { withLine(replaced(c_line, "1.00", "1,00")), DocumentFault::InvalidValue, 4, L"1,00", line },
        { withLine(replaced(c_line, "1.00", "1")), DocumentFault::InvalidValue, 4, L"Betrag", line },
        { withLine(replaced(c_line, "1.00", "1000000000.00")), DocumentFault::InvalidValue, 4, L"Betrag", line },
        { withLine(replaced(c_line, "1.00", "NaN")), DocumentFault::InvalidValue, 4, L"NaN", line },
        { withLine(replaced(c_line, "20", "100.01")), DocumentFault::InvalidValue, 4, L"Steuersatz", line },
        { withLine(replaced(c_line, "Ware", "")), DocumentFault::InvalidValue, 4, L"Text fehlt", line },
        { c_start + c_head + ">" + c_line + "</invoice>\n" + c_head + ">" + c_line + c_end,
          DocumentFault::DuplicateNumber, 4, L"\u201e1\u201c", invoice },
    };
    std::vector<Invoice> const untouched{ MakeInvoice(L"untouched") };
    std::vector<Invoice> invoices = untouched;
    for (Row const& row : rows)
    {
        SCOPED_TRACE(row.text);
        DocumentFault fault;
        ASSERT_FALSE(TryRead(row.text, invoices, fault));
        EXPECT_EQ(fault.code, row.code) << ToUtf8(fault.text);
        EXPECT_EQ(fault.line, row.line);
        EXPECT_GT(fault.column, 0);
        EXPECT_FALSE(fault.text.empty());
        EXPECT_NE(fault.text.find(row.part), std::wstring::npos) << ToUtf8(fault.text);
        EXPECT_EQ(ToUtf8(fault.path), ToUtf8(row.path));
        EXPECT_EQ(invoices, untouched);
    }
    DocumentFault const fault{ DocumentFault::InvalidValue, L"Ung\u00fcltig", 4, 7, L"/invoiceBook" };
    EXPECT_EQ(ToUtf8(FormatDocumentFault(L"a.xml", fault)),
              "\u201ea.xml\u201c kann nicht gelesen werden.\nUng\u00fcltig (Fehler 104)\nZeile 4, Spalte 7, in "
              "/invoiceBook");
}

TEST(BookDocument, RefusesWhatIsCutShortOrUnreadableAnywhere)
{
    std::string text = Write({ MakeSampleInvoices(c_today)[1] });
    std::vector<Invoice> const untouched{ MakeInvoice(L"untouched") };
    std::vector<Invoice> invoices = untouched;
    for (std::size_t size = 0; size < text.size(); ++size)
    {
        DocumentFault fault;
        bool const isWhole = size + 1 == text.size(); // but for the last line feed
        ASSERT_TRUE(isWhole || !TryRead(text.substr(0, size), invoices, fault)) << size;
        FailingSource source(text, size);
        std::istream stream(&source);
        ASSERT_FALSE(BookDocument::TryRead(stream, invoices, fault)) << size;
        ASSERT_EQ(fault.code, DocumentFault::NotReadable) << size;
        ASSERT_EQ(invoices, untouched);
    }
}

} // namespace Invoicing
