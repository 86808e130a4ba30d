#include "TemporaryFolder.h"

#include <Utilities/FileHelper.h>

using Vek::Framework::Utilities::FileHelper;

TEST(FileName, BeyondAsciiMeansTheSameWideAndNarrow)
{
    TemporaryFolder const folder;
    auto const write = [&](std::u8string const& name)
    { return static_cast<bool>(std::ofstream(folder.GetPath() / std::filesystem::path(name)) << "x" << std::flush); };
    ASSERT_TRUE(write(u8"\u00E4\u20AC\U0001F600.txt"));
    ASSERT_TRUE(write(u8"\u00F6\u20AC.txt"));
    EXPECT_NE(FileHelper::ReadBinary(folder.At(L"\u00E4\u20AC\xD83D\xDE00.txt")), nullptr);
    EXPECT_NE(FileHelper::ReadBinary(folder.At(L"\u00F6\u20AC.txt")), nullptr);
    EXPECT_TRUE(FileHelper::Exists((folder.GetPath() / "").string() + "\xF6\x80.txt"));
}
