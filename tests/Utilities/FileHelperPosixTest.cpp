#include "TemporaryFolder.h"
#include "UnitText.h"

#include <Exceptions/InvalidStateException.h>
#include <Utilities/FileHelper.h>

#include <sys/stat.h>

using namespace Vek::Framework::Utilities;

TEST(FileHelperPosix, WaitsForNoPipe)
{
    TemporaryFolder const folder;
    std::wstring const pipe = folder.At(L"pipe");
    ASSERT_EQ(mkfifo((folder.GetPath() / "pipe").c_str(), 0600), 0);
    std::wstring const file = folder.Write("file", "x");
    EXPECT_EQ(FileHelper::ReadBinary(pipe), nullptr);
    EXPECT_THROW(FileHelper::HasEqualContent(pipe, file), Vek::InvalidStateException);
    EXPECT_THROW(FileHelper::HasEqualContent(file, pipe), Vek::InvalidStateException);
    EXPECT_FALSE(FileHelper::Copy(pipe, folder.At(L"copy"), true));
    EXPECT_FALSE(FileHelper::Copy(file, pipe, true));
}

TEST(FileHelperPosix, LinksExistWhereverTheyLead)
{
    TemporaryFolder const folder;
    folder.Write("file", "x");
    std::filesystem::create_symlink("file", folder.GetPath() / "link");
    std::filesystem::create_symlink("nowhere", folder.GetPath() / "dangling");
    EXPECT_NE(FileHelper::ReadBinary(folder.At(L"link")), nullptr);
    EXPECT_TRUE(FileHelper::Exists(folder.At(L"dangling")));
    EXPECT_EQ(FileHelper::ReadBinary(folder.At(L"dangling")), nullptr);
}

TEST(FileHelperPosix, NamesThatUtf8CannotHoldNameNothing)
{
    TemporaryFolder const folder;
    for (unsigned const unit : { 0xD83DU, 0xDE00U, 0x10000U })
    {
        std::wstring const path = folder.At(MakeText({ 'a', unit, 'b' }));
        EXPECT_EQ(FileHelper::GetExistenceState(path), FileExistenceResult::Undetermined);
        EXPECT_FALSE(FileHelper::EnsureDirectoryExists(path));
        FileHelper::Delete(path);
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.GetPath()));
}
