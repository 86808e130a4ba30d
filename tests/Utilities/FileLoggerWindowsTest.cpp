#include "LogReader.h"

#include <windows.h>

using namespace Vek::Framework::Utilities;

TEST(FileLoggerWindows, GoesOnWhileAReaderHoldsTheFile)
{
    LogFolder folder(100, 2);
    FileLogger logger = folder.Open();
    logger.Warn(L"a");
    HANDLE const reader = CreateFileW(folder.GetFolder().At(L"log").c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(reader, INVALID_HANDLE_VALUE);
    std::string const time = LogFolder::c_time;
    std::string expected = time + "WARN a\n";
    for (int i = 0; i < 10; ++i)
    {
        logger.Warn(L"x");
        expected += time + "WARN x\n";
    }
    std::string read(1000, '\0');
    DWORD size = 0;
    EXPECT_TRUE(ReadFile(reader, read.data(), 1000, &size, nullptr));
    EXPECT_EQ(read.substr(0, size), expected);
    EXPECT_EQ(folder.Read("log.1"), "none");
    CloseHandle(reader);
    logger.Warn(L"y");
    EXPECT_EQ(folder.Read("log.1"), expected);
    EXPECT_EQ(folder.Read(), time + "WARN y\n");
}
