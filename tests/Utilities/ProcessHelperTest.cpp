#include "TemporaryFolder.h"

#include <Utilities/FileHelper.h>
#include <Utilities/ProcessHelper.h>
#include <Utilities/WStringHelper.h>

using namespace Vek::Framework::Utilities;

TEST(ProcessHelper, StartDirectoryHoldsTheProgram)
{
    TemporaryFolder const folder;
    auto const before = std::filesystem::current_path();
    std::filesystem::current_path(folder.GetPath());
    std::wstring const directory = ProcessHelper::GetProcessStartDirectory();
    std::wstring const program =
        TemporaryFolder::c_isWindows ? L"\\FrameworkUtilitiesTests.exe" : L"/FrameworkUtilitiesTests";
    EXPECT_TRUE(FileHelper::Exists(directory + program));
    std::filesystem::current_path(before);
}

// The examples' tests bring arguments beyond the code page.
TEST(ProcessHelper, ArgumentsAreThoseOfMain)
{
    std::vector<std::string> const& main = testing::internal::GetArgvs();
    std::vector<std::wstring> const arguments = ProcessHelper::GetArguments();
    ASSERT_EQ(main.size(), arguments.size() + 1);
    for (std::size_t at = 0; at < arguments.size(); ++at)
        EXPECT_EQ(main[at + 1], WStringHelper::GetUTF8FromUTF16(arguments[at]));
}
