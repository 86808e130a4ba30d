#include "BookSession.h"
#include "Sample.h"
#include "Utilities/TemporaryFolder.h"

#include <Utilities/MultiLogger.h>

#include <windows.h>

namespace Invoicing
{

TEST(BookSession, WaitsForAFileThatAnotherProgramHolds)
{
    TemporaryFolder const folder;
    std::wstring const path = folder.Write("book.xml", Write(MakeSampleInvoices(c_today)));
    Vek::Framework::Utilities::MultiLogger nowhere;
    BookSession session(nowhere);
    DocumentFault fault;
    ASSERT_TRUE(session.TryOpen(path, fault));
    ASSERT_TRUE(session.GetBook().Delete(L"2025-001").IsSuccess());
    std::vector<Invoice> const invoices = session.GetBook().GetInvoices();
    std::string const before = ReadFile(path);

    HANDLE const holder = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(holder, INVALID_HANDLE_VALUE);
    std::wstring message;
    EXPECT_FALSE(session.TrySave(path, message));
    EXPECT_EQ(ToUtf8(message),
              "\u201ebook.xml\u201c kann nicht gespeichert werden. Die Datei ist schreibgesch\u00fctzt "
              "oder wird von einem anderen Programm verwendet. Was vorher da war, ist "
              "unver\u00e4ndert.");
    EXPECT_FALSE(session.IsSaved());
    EXPECT_EQ(session.GetBook().GetInvoices(), invoices);
    BookSession other(nowhere);
    EXPECT_FALSE(other.TryOpen(path, fault));
    EXPECT_EQ(fault.code, DocumentFault::NotReadable);
    CloseHandle(holder);

    EXPECT_EQ(ReadFile(path), before);
    EXPECT_TRUE(session.TrySave(path, message)) << ToUtf8(message);
    EXPECT_TRUE(session.IsSaved());
    EXPECT_EQ(ReadFile(path), Write(invoices));
}

} // namespace Invoicing
