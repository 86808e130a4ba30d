#include "LogReader.h"
#include "UnitText.h"

#include <Utilities/DebuggerLogger.h>

using namespace Vek::Framework::Utilities;

namespace
{

std::string const c_time = LogFolder::c_time;

/// The message as the header says, unit by unit.
std::string WriteNaively(std::wstring const& message)
{
    std::string text;
    for (std::size_t at = 0; at < message.size(); ++at)
    {
        auto const unit = static_cast<unsigned>(message[at]);
        auto const next = at + 1 < message.size() ? static_cast<unsigned>(message[at + 1]) : 0;
        char escape[8] = {};
        if (unit == '\n' || unit == '\r' || unit == '\t')
            text += unit == '\n' ? "\\n" : unit == '\r' ? "\\r" : "\\t";
        else if (unit < 0x20 || (unit > 0x7E && unit < 0xA0) || unit == 0x2028 || unit == 0x2029)
        {
            std::snprintf(escape, sizeof escape, unit < 0x80 ? "\\x%02X" : "\\u%04X", unit);
            text += escape;
        }
        else if (unit >= 0xD800 && unit < 0xDC00 && next >= 0xDC00 && next < 0xE000)
            AppendUtf8(text, 0x10000 + ((unit - 0xD800) << 10U) + (static_cast<unsigned>(message[++at]) - 0xDC00));
        else
            AppendUtf8(text, unit > 0xFFFF || (unit >= 0xD800 && unit < 0xE000) ? 0xFFFD : unit);
    }
    return text;
}

} // namespace

TEST(FileLogger, WritesOneLineForEachMessage)
{
    LogFolder folder;
    {
        FileLogger logger = folder.Open();
        logger.Info(L"x\r\n");
        logger.Warn(MakeText({ 0x20AC, 0xD83D, 0xDE00, '\\', 'n' }));
        folder.TurnClock(60'876); // the milliseconds have to be filled up
        logger.Error(L"");
        logger.Log(Logger::Level{ 7 }, L"y");
    }
    std::string const later = "2024-10-27 02:31:00.999 ";
    std::string const first = c_time + "INFO x\\r\\n\n" + c_time + "WARN \xE2\x82\xAC\xF0\x9F\x98\x80\\n\n";
    EXPECT_EQ(folder.Read(), first + later + "ERROR \n" + later + "LEVEL7 y\n");
    folder.Open().Info(L"appended");
    EXPECT_TRUE(folder.Read().ends_with("\n" + later + "INFO appended\n"));
}

TEST(FileLogger, WritesTextsOfEveryKindAndLengthAsANaiveOneDoes)
{
    LogFolder folder;
    FileLogger logger = folder.Open();
    std::vector<unsigned> units = { 0x1F,   0x20,   0x7E,   0x7F,   0x80,   0x9F,   0xA0,   0xFF,   0x7FF,  0x800,
                                    0x2027, 0x2029, 0x7FFF, 0x8000, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFF };
    if (c_hasWideElements)
        units.insert(units.end(), { 0x10000, 0x10041 });
    std::mt19937 random(1);
    std::string expected;
    for (std::size_t size = 0; size < 1100; size += size < 80 ? 1 : 61)
    {
        for (unsigned const special : units)
        {
            std::wstring message(size, L'a');
            for (int i = 0; size > 0 && i < 3; ++i)
                message[random() % size] = static_cast<wchar_t>(i == 0 ? special : units[random() % units.size()]);
            logger.Info(message);
            expected += c_time + "INFO " + WriteNaively(message) + "\n";
        }
    }
    logger.Flush();
    EXPECT_TRUE(folder.Read() == expected);
}

TEST(FileLogger, WritesInTimeForReaders)
{
    LogFolder folder;
    FileLogger logger = folder.Open();
    std::string const line = c_time + "INFO x\n";
    logger.Info(L"x");
    EXPECT_EQ(folder.Read(), line) << "the first one";
    logger.Info(L"x");
    EXPECT_EQ(folder.Read(), line) << "kept";
    EXPECT_TRUE(logger.Flush());
    EXPECT_EQ(folder.Read(), line + line);
    logger.Info(L"x");
    logger.Log(Logger::Level{ 3 }, L"y");
    EXPECT_EQ(folder.Read(), line + line + line + c_time + "LEVEL3 y\n");
    logger.Info(L"x");
    folder.TurnClock(1000);
    logger.Info(L"z");
    EXPECT_TRUE(folder.Read().ends_with("INFO x\n2024-10-27 02:30:01.123 INFO z\n")) << "another second";
    std::size_t const size = folder.Read().size();
    for (int i = 0; i < 2200; ++i) // of 31 bytes each
        logger.Info(L"x");
    EXPECT_GT(folder.Read().size(), size) << "64 KiB";
}

TEST(FileLogger, PutsFullFilesAside)
{
    LogFolder folder(100, 3);
    auto const line = [&](char name) { return c_time + "WARN " + name + "\n"; }; // 31 bytes: three are below 100
    {
        FileLogger logger = folder.Open();
        for (wchar_t name = L'a'; name <= L'h'; ++name)
            logger.Warn(std::wstring(1, name));
    }
    EXPECT_EQ(folder.Read(), line('g') + line('h'));
    EXPECT_EQ(folder.Read("log.1"), line('d') + line('e') + line('f'));
    EXPECT_EQ(folder.Read("log.2"), line('a') + line('b') + line('c'));
    EXPECT_EQ(folder.Read("log.3"), "none");
    FileLogger logger = folder.Open();
    logger.Info(std::wstring(200, L'x')); // longer than a file may be
    for (wchar_t const name : { L'i', L'j', L'k', L'l' })
        logger.Warn(std::wstring(1, name));
    EXPECT_EQ(folder.Read(), line('l'));
    EXPECT_EQ(folder.Read("log.1"), line('i') + line('j') + line('k'));
    EXPECT_EQ(folder.Read("log.2"), c_time + "INFO " + std::string(200, 'x') + "\n");
    EXPECT_EQ(folder.Read("log.3"), line('g') + line('h')) << "what was log.3 is gone, nothing else";
    EXPECT_EQ(folder.Read("log.4"), "none");
}

TEST(FileLogger, GoesOnInTheSameFileWhenRenamingFails)
{
    LogFolder folder(100, 2);
    folder.GetFolder().Write("log.2", "old");
    std::filesystem::create_directory(folder.GetFolder().GetPath() / "log.1"); // no file takes its place
    std::filesystem::create_directory(folder.GetFolder().GetPath() / "log.1" / "full");
    FileLogger logger = folder.Open();
    std::string expected;
    for (int i = 0; i < 20; ++i)
    {
        logger.Info(L"x");
        expected += c_time + "INFO x\n";
    }
    logger.Flush();
    EXPECT_EQ(folder.Read(), expected);
    EXPECT_EQ(folder.Read("log.2"), "old");
    EXPECT_EQ(logger.GetFailedWritesCount(), 0);
    std::filesystem::remove_all(folder.GetFolder().GetPath() / "log.1");
    logger.Warn(L"y");
    EXPECT_EQ(folder.Read("log.1"), expected);
    EXPECT_EQ(folder.Read("log.2"), "old");
}

TEST(FileLogger, FollowsItsNameWhenTheFileIsRenamed)
{
    LogFolder folder(100);
    FileLogger logger = folder.Open();
    logger.Warn(L"a");
    std::filesystem::rename(folder.GetFolder().GetPath() / "log", folder.GetFolder().GetPath() / "theirs");
    logger.Warn(L"b");
    EXPECT_EQ(folder.Read("theirs"), c_time + "WARN a\n" + c_time + "WARN b\n");
    folder.TurnClock(1000);
    logger.Info(L"c");
    EXPECT_EQ(folder.Read(), "2024-10-27 02:30:01.123 INFO c\n");
    // A full file that is not at the path any more is not put aside, and neither is what has come in its place.
    std::filesystem::rename(folder.GetFolder().GetPath() / "log", folder.GetFolder().GetPath() / "theirs2");
    folder.GetFolder().Write("log", "new\n");
    for (int i = 0; i < 3; ++i)
        logger.Warn(L"d");
    EXPECT_EQ(folder.Read(), "new\n2024-10-27 02:30:01.123 WARN d\n");
    EXPECT_EQ(folder.Read("log.1"), "none");
}

TEST(FileLogger, PathsThatDoNotOpen)
{
    TemporaryFolder const folder;
    for (std::wstring const& path :
         { std::wstring(), folder.At(L""), folder.At(L"missing/log"), folder.At(std::wstring(L"a\0b", 3)) })
        EXPECT_THROW(FileLogger{ path }, Vek::InvalidStateException);
    EXPECT_THROW(FileLogger(folder.At(L"log"), { 100, 0, {} }), Vek::ArgumentException);
    EXPECT_TRUE(std::filesystem::is_empty(folder.GetPath()));
}

TEST(FileLogger, TakesTheTimeFromTheSystem)
{
    LogFolder const folder;
    std::wstring const path = folder.GetFolder().At(L"log");
    FileLoggerOptions const systemTime{ 0, 3, [] { return DateTime::Now(); } };
    FileLogger(path, systemTime).Info(L"x");
    FileLogger(path).Info(L"x");
    FileLogger(path, systemTime).Info(L"x");
    std::string const text = folder.Read(); // lines of 31 bytes
    EXPECT_TRUE(text.substr(0, 31) <= text.substr(31, 31) && text.substr(31, 31) <= text.substr(62)) << text;
}
