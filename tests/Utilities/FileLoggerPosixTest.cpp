#include "FullDisk.h"
#include "LogReader.h"

#include <Utilities/DebuggerLogger.h>

#include <sys/stat.h>

using namespace Vek::Framework::Utilities;

static std::string const c_time = LogFolder::c_time;

TEST(FileLoggerPosix, AFullDiskLosesNothingThatCanBeKept)
{
    LogFolder folder(100); // putting it aside must wait as well
    FileLogger logger = folder.Open();
    std::string const line = c_time + "WARN x\n"; // 31 bytes
    std::string full;
    {
        FullDisk const disk(40);
        for (int i = 0; i < 4; ++i)
            logger.Warn(L"x");
        full = folder.Read();
        EXPECT_FALSE(logger.Flush());
    }
    EXPECT_EQ(full, line + line.substr(0, 9));
    EXPECT_EQ(logger.GetFailedWritesCount(), 4);
    EXPECT_EQ(folder.Read(), full);
    logger.Info(L"y");
    EXPECT_EQ(folder.Read() + folder.Read("log.1"), line + line + line + line);
    EXPECT_TRUE(logger.Flush());
    EXPECT_EQ(folder.Read("log.1"), line + line + line + line);
    EXPECT_EQ(folder.Read(), c_time + "INFO y\n");
    EXPECT_EQ(logger.GetLostMessagesCount(), 0);
}

TEST(FileLoggerPosix, TellsHowManyMessagesAFullDiskHasCost)
{
    LogFolder folder;
    FileLogger logger = folder.Open();
    std::wstring const message(1000, L'x');
    {
        FullDisk const disk(0);
        for (int i = 0; i < 1100; ++i)
            logger.Info(message);
    }
    long long const lost = logger.GetLostMessagesCount();
    EXPECT_EQ(lost, 1100 - 1024 * 1024 / 1030);
    EXPECT_EQ(logger.GetFailedWritesCount(), 1100);
    logger.Warn(L"y");
    std::string const text = folder.Read();
    EXPECT_EQ(text.size(), (1100U - static_cast<unsigned>(lost)) * 1030 + text.size() % 1030);
    EXPECT_TRUE(text.ends_with("x\n" + c_time + "WARN " + std::to_string(lost) +
                               " messages are lost: the file could not be written\n" + c_time + "WARN y\n"));
    logger.Warn(L"z");
    EXPECT_EQ(folder.Read(), text + c_time + "WARN z\n");
}

TEST(FileLoggerPosix, DevicesAreWrittenToAndNeverRenamed)
{
    FileLogger full(L"/dev/full", { 10, 1, {} });
    FileLogger null(L"/dev/null", { 10, 1, {} });
    for (FileLogger* const logger : { &full, &null })
        for (int i = 0; i < 3; ++i)
            logger->Warn(L"a message longer than a file may be");
    EXPECT_EQ(full.GetFailedWritesCount(), 3);
    EXPECT_EQ(null.GetFailedWritesCount(), 0);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full") && std::filesystem::is_character_file("/dev/null"));
    TemporaryFolder const folder;
    ASSERT_EQ(mkfifo((folder.GetPath() / "pipe").c_str(), 0600), 0);
    EXPECT_THROW(FileLogger(folder.At(L"pipe")), Vek::InvalidStateException);
}

TEST(FileLoggerPosix, FollowsItsNameWhenTheFileIsDeleted)
{
    LogFolder folder;
    FileLogger logger = folder.Open();
    logger.Warn(L"a");
    auto const permissions = std::filesystem::status(folder.GetFolder().GetPath() / "log").permissions();
    EXPECT_EQ(std::filesystem::perms::none, permissions & std::filesystem::perms(0111)) << "a text is no program";
    std::filesystem::remove(folder.GetFolder().GetPath() / "log");
    folder.TurnClock(1000);
    logger.Info(L"b");
    EXPECT_EQ(folder.Read(), "2024-10-27 02:30:01.123 INFO b\n");
}

TEST(DebuggerLoggerPosix, WritesToStandardError)
{
    testing::internal::CaptureStderr();
    DebuggerLogger logger;
    logger.Warn(L"a\n\u00E4");
    logger.Info(std::wstring(5000, L'x'));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "WARN a\\n\xC3\xA4\nINFO " + std::string(5000, 'x') + "\n");
}
