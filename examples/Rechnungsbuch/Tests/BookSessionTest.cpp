#include "BookSession.h"

#include "ProgramLog.h"
#include "Sample.h"
#include "Utilities/TemporaryFolder.h"

#include <Utilities/MultiLogger.h>
#include <Utilities/TimeMeasureContainer.h>

using namespace Vek::Framework::Utilities;

namespace Invoicing
{

namespace
{

/// Takes so many bytes and no more.
class FullBuffer : public std::stringbuf
{
public:
    explicit FullBuffer(std::size_t room) : m_room(room) {}

protected:
    std::streamsize xsputn(char const* bytes, std::streamsize count) override
    {
        std::streamsize const taken = std::min(count, static_cast<std::streamsize>(m_room));
        m_room -= static_cast<std::size_t>(taken);
        return std::stringbuf::xsputn(bytes, taken);
    }

private:
    std::size_t m_room;
};

} // namespace

TEST(BookSession, LosesNothingWhereverWritingFails)
{
    TemporaryFolder const folder;
    std::string const before = "what was there before";
    std::wstring const path = folder.Write("book.xml", before);
    MultiLogger nowhere;
    BookSession session(nowhere);
    for (std::size_t const number : { 1, 2 })
        ASSERT_TRUE(session.GetBook().Add(MakeSampleInvoices(c_today)[number]).IsSuccess());
    std::vector<Invoice> const invoices = session.GetBook().GetInvoices();
    std::string const after = Write(invoices);
    for (std::size_t room = 0; room < after.size(); ++room)
    {
        FullBuffer buffer(room);
        std::wstring message;
        ASSERT_FALSE(session.TrySave(path, buffer, message)) << room;
        ASSERT_EQ(ToUtf8(message), "\u201ebook.xml\u201c kann nicht gespeichert werden. Der Speicher reicht nicht.");
        ASSERT_EQ(ReadFile(path), before) << room;
        ASSERT_FALSE(session.IsSaved());
        ASSERT_EQ(session.GetBook().GetInvoices(), invoices);
    }
    EXPECT_EQ(session.GetCaption(), L"Unbenannt * - Rechnungsbuch");
    FullBuffer buffer(after.size());
    std::wstring message;
    ASSERT_TRUE(session.TrySave(path, buffer, message)) << ToUtf8(message);
    EXPECT_EQ(ReadFile(path), after);
    EXPECT_EQ(session.GetCaption(), L"book.xml - Rechnungsbuch");
    session.GetBook().Undo();
    EXPECT_EQ(session.GetCaption(), L"book.xml * - Rechnungsbuch");
}

TEST(BookSession, OpensAllOrNothingAndTellsTheLog)
{
    TemporaryFolder const folder;
    std::wstring const good = folder.Write("good.xml", Write(MakeSampleInvoices(c_today)));
    std::wstring const bad = folder.Write("bad.xml", "<?xml version=\"1.0\"?>\n<invoiceBook version=\"9\">");
    std::wstring const empty = folder.Write("empty.xml", "");
    TimeMeasureContainer::ForEachMeasure([](TimeMeasureInfo& info, std::string const&) { info.Reset(); });
    {
        ProgramLog log(folder.At(L"log"), [] { return DateTime(); });
        BookSession session(log.GetLogger());
        DocumentFault fault;
        ASSERT_TRUE(session.TryOpen(good, fault));
        ASSERT_TRUE(session.GetTemplates().TrySet(L"Brief", { {}, L"Liste", 2, true, 10 }, fault.text));
        ASSERT_TRUE(session.TrySaveTemplates(fault.text));
        ASSERT_TRUE(session.GetBook().Delete(L"2025-001").IsSuccess());
        for (auto const& [path, code] :
             { std::pair(bad, 101U), std::pair(empty, 6U), std::pair(folder.At(L"no"), 100U) })
        {
            EXPECT_FALSE(session.TryOpen(path, fault));
            EXPECT_EQ(fault.code, code);
            EXPECT_EQ(session.GetPath(), good);
            EXPECT_EQ(session.GetBook().GetInvoices().size(), 12U);
            EXPECT_TRUE(session.GetBook().GetHistory().CanUndo());
        }
        ASSERT_TRUE(session.TryOpen(good, fault));
        EXPECT_FALSE(session.GetBook().GetHistory().CanUndo());
        EXPECT_EQ(session.GetTemplates().Get(L"Brief").copies, 2);
        session.StartEmpty();
        EXPECT_FALSE(session.TrySaveTemplates(fault.text)); // has no file to stand beside
        log.LogTimes();
    }
    std::string const log = ReadFile(folder.At(L"log"));
    for (char const* const part : { "INFO Ge\u00f6ffnet: ", "good.xml, Rechnungen: 13\n", "ERROR \u201e",
                                    "(Fehler 101)", "\\nZeile 2, Spalte ", "INFO Laden 5 measures: " })
        EXPECT_NE(log.find(part), std::string::npos) << part << "\n" << log;
}

} // namespace Invoicing
