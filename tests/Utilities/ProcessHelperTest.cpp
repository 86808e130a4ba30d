#include "TemporaryFolder.h"

#include <Utilities/FileHelper.h>
#include <Utilities/ProcessHelper.h>

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
