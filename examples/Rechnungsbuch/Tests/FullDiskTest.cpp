#include "FullDisk.h"
#include "BookSession.h"
#include "Sample.h"
#include "Utilities/TemporaryFolder.h"

#include <Utilities/MultiLogger.h>

#include <filesystem>

namespace Invoicing
{

TEST(BookSession, LeavesTheOldFileOnAFullDisk)
{
    TemporaryFolder const folder;
    std::string const before = "what was there before";
    std::wstring const path = folder.Write("book.xml", before);
    Vek::Framework::Utilities::MultiLogger nowhere;
    BookSession session(nowhere);
    session.StartWithSample(c_today);
    ASSERT_TRUE(session.GetBook().Delete(L"2025-001").IsSuccess());
    std::string const after = Write(session.GetBook().GetInvoices());
    for (std::size_t room = 0; room < after.size(); room += 37)
    {
        std::wstring message;
        bool isSaved = true;
        {
            FullDisk const disk(room);
            isSaved = session.TrySave(path, message);
        }
        ASSERT_FALSE(isSaved) << room;
        ASSERT_NE(message.find(L"vielleicht ist er voll"), std::wstring::npos) << ToUtf8(message);
        ASSERT_EQ(ReadFile(path), before) << room;
        ASSERT_FALSE(session.IsSaved());
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.GetPath()), {}), 1); // nothing stays beside it
    std::wstring message;
    FullDisk const disk(after.size());
    EXPECT_TRUE(session.TrySave(path, message)) << ToUtf8(message);
    EXPECT_EQ(ReadFile(path), after);
}

} // namespace Invoicing
