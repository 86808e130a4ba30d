#include "TemporaryFolder.h"

#include <Utilities/FileHelper.h>
#include <Utilities/FileReplacement.h>

using namespace Vek::Framework::Utilities;

TEST(FileName, BeyondAsciiMeansTheSameWideAndNarrow)
{
    TemporaryFolder const folder;
    auto const write = [&](std::u8string const& name)
    { return static_cast<bool>(std::ofstream(folder.GetPath() / std::filesystem::path(name)) << "x" << std::flush); };
    ASSERT_TRUE(write(u8"\u00E4\u20AC\U0001F600.txt"));
    ASSERT_TRUE(write(u8"\u00F6\u20AC.txt"));
    EXPECT_NE(FileHelper::ReadBinary(folder.At(L"\u00E4\u20AC\xD83D\xDE00.txt")), nullptr);
    EXPECT_NE(FileHelper::ReadBinary(folder.At(L"\u00F6\u20AC.txt")), nullptr);

    std::string const narrow = (folder.GetPath() / "").string() + "\xF6\x80.txt";
    std::string const copy = (folder.GetPath() / "").string() + "\xE4.txt";
    EXPECT_TRUE(FileHelper::Exists(narrow));
    EXPECT_TRUE(FileHelper::Copy(narrow, copy, false) && FileHelper::HasEqualContent(narrow, copy));
    EXPECT_TRUE(FileHelper::Exists(folder.At(L"\u00E4.txt")) && FileHelper::ReadBinary(copy)->GetSize() == 1);
    EXPECT_EQ(FileReplacementResult::Replaced, ReplaceFileContent(copy, "new"));
    EXPECT_EQ(3U, FileHelper::ReadBinary(folder.At(L"\u00E4.txt"))->GetSize());
    FileHelper::Delete(copy);
    EXPECT_TRUE(FileHelper::EnsureDirectoryExists(copy));
    EXPECT_TRUE(std::filesystem::is_directory(folder.GetPath() / std::filesystem::path(u8"\u00E4.txt")));
    EXPECT_EQ("\xF6\x80.txt", FileHelper::GetFilename("C:\\\x80\\\xF6\x80.txt"));
    EXPECT_EQ("C:\\\x80\\", FileHelper::GetFilename("C:\\\x80\\"));
}
