#include "FullDisk.h"
#include "TemporaryFolder.h"
#include "UnitText.h"

#include <Utilities/FileHelper.h>
#include <Utilities/FileReplacement.h>

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

TEST(FileHelperPosix, AFullDiskLeavesNoNewFile)
{
    TemporaryFolder const folder;
    std::wstring const source = folder.Write("source", std::string(100'000, 'x'));
    std::wstring const present = folder.Write("present", "old");
    FullDisk const disk(50'000);
    EXPECT_EQ(ReplaceFileContent(present, std::string(100'000, 'x')), FileReplacementResult::NotWritten);
    EXPECT_FALSE(FileHelper::Exists(present + L".1.tmp"));
    EXPECT_EQ(FileHelper::ReadBinary(present)->GetSize(), 3U);
    EXPECT_FALSE(FileHelper::Copy(source, folder.At(L"new"), false));
    EXPECT_FALSE(FileHelper::Copy(source, present, true));
    EXPECT_FALSE(FileHelper::Exists(folder.At(L"new")));
    EXPECT_TRUE(FileHelper::Exists(present)) << "what was there stays, incomplete";
}

TEST(FileHelperPosix, ReadsFilesWhoseSizeIsGivenAsZero)
{
    TemporaryFolder const folder;
    auto const content = FileHelper::ReadBinary(L"/proc/self/maps");
    ASSERT_NE(content, nullptr);
    EXPECT_GT(content->GetSize(), 4096U);
    ASSERT_TRUE(FileHelper::Copy(L"/proc/version", folder.At(L"copy"), false));
    EXPECT_TRUE(FileHelper::HasEqualContent(L"/proc/version", folder.At(L"copy")));
    EXPECT_GT(FileHelper::ReadBinary(folder.At(L"copy"))->GetSize(), 0U);
}

TEST(FileHelperPosix, CopiesPermissionsButNeverOntoTheSameFile)
{
    TemporaryFolder const folder;
    std::wstring const source = folder.Write("source", "x");
    chmod((folder.GetPath() / "source").c_str(), 0640);
    std::wstring const target = folder.Write("target", "y");
    EXPECT_TRUE(FileHelper::Copy(source, target, true));
    EXPECT_EQ(static_cast<int>(std::filesystem::status(folder.GetPath() / "target").permissions()), 0640);
    std::filesystem::create_hard_link(folder.GetPath() / "source", folder.GetPath() / "same");
    EXPECT_FALSE(FileHelper::Copy(source, folder.At(L"same"), true));
    EXPECT_EQ(FileHelper::ReadBinary(source)->GetSize(), 1U);
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
