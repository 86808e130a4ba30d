#include "InvoiceBook.h"

#include "Sample.h"

using VekSysBase::VekDateEx;

namespace Invoicing
{

// Held against the naive way: a copy of everything for each step.
TEST(InvoiceBook, UndoesAndRedoesAnyEdits)
{
    std::mt19937 random(11);
    InvoiceBook book;
    book.Reset(MakeSampleInvoices(c_today));
    int raised = 0;
    book.GetChangedEvent().Add([&raised](InvoiceBook const&) { ++raised; });
    std::vector<std::vector<Invoice>> states{ book.GetInvoices() };
    std::size_t position = 0;
    std::size_t dropped = 0;
    auto const keep = [&](bool isDone)
    {
        if (!isDone || book.GetInvoices() == states[position])
            return;
        states.resize(++position);
        states.push_back(book.GetInvoices());
        dropped = std::max(dropped, position - book.GetHistory().GetUndoCount());
    };
    for (int step = 0; step < 2000; ++step)
    {
        std::size_t const count = book.GetInvoices().size();
        std::wstring const number = count == 0 ? L"" : book.GetInvoices()[random() % count].number;
        int const before = raised;
        switch (random() % 8)
        {
        case 0:
        case 1:
        case 2:
            keep(book.Add(MakeInvoice(std::to_wstring(random() % 50))).IsSuccess());
            break;
        case 3:
            keep(book.Replace(number, MakeInvoice(std::to_wstring(random() % 50))).IsSuccess());
            break;
        case 4:
            keep(book.Delete(number).IsSuccess());
            break;
        case 5:
            keep(book.MarkPaid(number, random() % 2 == 0 ? c_today : VekDateEx()).IsSuccess());
            break;
        case 6:
            ASSERT_EQ(book.GetHistory().CanUndo(), position > dropped);
            if (book.GetHistory().CanUndo())
                book.Undo(), --position;
            break;
        default:
            ASSERT_EQ(book.GetHistory().CanRedo(), position + 1 < states.size());
            if (book.GetHistory().CanRedo())
                book.Redo(), ++position;
        }
        ASSERT_EQ(book.GetInvoices(), states[position]) << step;
        ASSERT_LE(raised - before, 1);
    }
    EXPECT_GT(dropped, 0U); // the history has been full
}

TEST(InvoiceBook, RefusesInGermanAndLeavesEverything)
{
    InvoiceBook book;
    ASSERT_TRUE(book.Add(MakeInvoice(L"a-1")).IsSuccess());
    ASSERT_TRUE(book.Add(MakeInvoice(L"a-2")).IsSuccess());
    book.MarkSaved();
    VekDateEx const tooEarly(30, 3, 2025);
    std::vector<Invoice> bad(8, MakeInvoice(L"bad"));
    bad[0].number = L" bad";
    bad[1].customer = L"\u0151";
    bad[2].date = VekDateEx(29, 2, 2025);
    bad[3].terms.days = -1;
    bad[4].lines.clear();
    bad[5].lines[0].net = Amount(L"1,00") / 3;
    bad[6].lines[0].taxRate = Amount(L"0,00") / 0; // a NaN
    bad[7].paidOn = tooEarly;
    for (Invoice const& invoice : bad)
    {
        EXPECT_FALSE(book.Add(invoice).IsSuccess());
        EXPECT_FALSE(book.Replace(L"a-1", invoice).IsSuccess());
    }
    struct Row
    {
        InvoiceBook::CommandResult result;
        wchar_t const* message;
    };
    Row const rows[] = {
        { book.Add(MakeInvoice(L"A-1")), L"Die Rechnungsnummer \u201eA-1\u201c ist schon vergeben." },
        { book.Replace(L"a-2", MakeInvoice(L"A-1")), L"Die Rechnungsnummer \u201eA-1\u201c ist schon vergeben." },
        { book.Replace(L"x", MakeInvoice(L"x")), L"Die Rechnung \u201ex\u201c gibt es nicht." },
        { book.Delete(L"x"), L"Die Rechnung \u201ex\u201c gibt es nicht." },
        { book.MarkPaid(L"a-1", tooEarly), L"Eine Rechnung wird nicht vor ihrem Datum bezahlt." },
    };
    for (Row const& row : rows)
        EXPECT_EQ(ToUtf8(row.result.GetErrorMessage()), ToUtf8(row.message));
    EXPECT_TRUE(book.Replace(L"A-2", MakeInvoice(L"a-2")).IsSuccess()); // changes nothing
    EXPECT_TRUE(book.GetHistory().IsSaved());
    EXPECT_EQ(book.GetHistory().GetUndoCount(), 2U);

    EXPECT_TRUE(book.MarkPaid(L"a-1", c_today).IsSuccess());
    EXPECT_FALSE(book.MarkPaid(L"a-1", c_today).IsSuccess()); // already
    EXPECT_EQ(ToUtf8(book.GetHistory().GetUndoText()), "Rechnung a-1 als bezahlt kennzeichnen");
    book.Undo();
    EXPECT_TRUE(book.GetHistory().IsSaved());
}

} // namespace Invoicing
