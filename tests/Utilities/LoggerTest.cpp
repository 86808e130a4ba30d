#include <Utilities/LevelFilterLogger.h>
#include <Utilities/MultiLogger.h>
#include <Utilities/SynchronizedLogger.h>

using namespace Vek::Framework::Utilities;

namespace
{

/// Notes its name, the level and the message; then does what it is told to.
class TracingLogger : public Logger
{
public:
    TracingLogger(std::wstring& trace, wchar_t name, std::function<void(std::wstring const&)> then = {})
        : m_trace(trace),
          m_name(name),
          m_then(std::move(then))
    {
    }

    ~TracingLogger() override { m_trace += std::wstring{ L'~', m_name }; }

    void Log(Level level, std::wstring const& message) override
    {
        m_trace += m_name + std::to_wstring(static_cast<int>(level)) + message + L' ';
        if (m_then)
            m_then(message);
    }

private:
    std::wstring& m_trace;
    wchar_t m_name;
    std::function<void(std::wstring const&)> m_then;
};

void Throw(std::wstring const&)
{
    throw Vek::InvalidStateException();
}

} // namespace

TEST(MultiLogger, PassesOnInOrderThroughAllLevels)
{
    std::wstring trace;
    {
        MultiLogger outer;
        outer.Warn(L"nobody");
        auto inner = std::make_unique<MultiLogger>();
        inner->Add(std::make_unique<TracingLogger>(trace, L'b'));
        outer.Add(std::make_unique<TracingLogger>(trace, L'a'));
        outer.Add(std::move(inner));
        outer.Add(std::make_unique<TracingLogger>(trace, L'c'));
        outer.Info(L"x");
        outer.Warn(L"y");
        outer.Error(L"");
        outer.Add(std::make_unique<TracingLogger>(trace, L'd', Throw));
        outer.Add(std::make_unique<TracingLogger>(trace, L'e'));
        EXPECT_THROW(outer.Log(Logger::Level{ 7 }, L"z"), Vek::InvalidStateException) << "which ends the message";
        EXPECT_THROW(outer.Add(nullptr), Vek::ArgumentException);
    }
    EXPECT_EQ(trace, L"a0x b0x c0x a1y b1y c1y a2 b2 c2 a7z b7z c7z d7z ~a~b~c~d~e");
}

TEST(MultiLogger, SinksMayAddAndLogToTheirCaller)
{
    std::wstring trace;
    MultiLogger loggers;
    auto const react = [&](std::wstring const& message)
    {
        if (message != L"x")
            return;
        for (int i = 0; i < 100; ++i) // the list moves while the message runs
            loggers.Add(std::make_unique<LevelFilterLogger>(Logger::Level::Error,
                                                            std::make_unique<TracingLogger>(trace, L'n')));
        loggers.Warn(L"inner");
    };
    loggers.Add(std::make_unique<TracingLogger>(trace, L'a', react));
    loggers.Add(std::make_unique<TracingLogger>(trace, L'b'));
    loggers.Info(L"x");
    EXPECT_EQ(trace, L"a0x a1inner b1inner b0x ");
    loggers.Error(L"y");
    EXPECT_EQ(trace.size(), 24 + 8 + 100 * 4U);
}

TEST(MultiLogger, SinksMayLogWhileTheyAreDestroyed)
{
    struct LastWords : Logger
    {
        explicit LastWords(Logger& caller) : m_caller(caller) {}
        ~LastWords() override { m_caller.Info(L"end"); }
        void Log(Level, std::wstring const&) override {}
        Logger& m_caller;
    };
    std::wstring trace;
    {
        MultiLogger plain;
        SynchronizedLogger synchronized;
        plain.Add(std::make_unique<LastWords>(plain));
        plain.Add(std::make_unique<TracingLogger>(trace, L'a'));
        synchronized.Add(std::make_unique<LastWords>(synchronized));
        synchronized.Add(std::make_unique<TracingLogger>(trace, L'b'));
    }
    EXPECT_EQ(trace, L"b0end ~ba0end ~a");
}

TEST(LevelFilterLogger, PassesOnFromItsLevelUp)
{
    std::wstring trace;
    LevelFilterLogger filter(Logger::Level::Warn, std::make_unique<TracingLogger>(trace, L'a'));
    for (int level = -1; level <= 3; ++level)
        filter.Log(Logger::Level{ level }, L"x");
    EXPECT_EQ(trace, L"a1x a2x a3x ");
    EXPECT_THROW(LevelFilterLogger(Logger::Level::Info, nullptr), Vek::ArgumentException);
}

TEST(SynchronizedLogger, AFailingSinkStopsNobody)
{
    std::wstring trace;
    SynchronizedLogger loggers;
    EXPECT_EQ(loggers.GetLastFailure(), nullptr);
    loggers.Add(std::make_unique<TracingLogger>(trace, L'a', Throw));
    loggers.Add(std::make_unique<TracingLogger>(trace, L'b', [](auto&) { throw 5; }));
    loggers.Add(std::make_unique<TracingLogger>(trace, L'c'));
    loggers.Info(L"x");
    loggers.Info(L"y");
    EXPECT_EQ(trace, L"a0x b0x c0x a0y b0y c0y ");
    EXPECT_EQ(loggers.GetFailuresCount(), 4);
    EXPECT_THROW(std::rethrow_exception(loggers.GetLastFailure()), int);
    EXPECT_THROW(loggers.Add(nullptr), Vek::ArgumentException);
}

TEST(SynchronizedLogger, EndsWhatSinksAnswerToEachOther)
{
    std::wstring trace;
    SynchronizedLogger loggers;
    loggers.Add(std::make_unique<TracingLogger>(trace, L'a', [&](auto& message) { loggers.Info(message + L"a"); }));
    loggers.Add(std::make_unique<TracingLogger>(trace, L'b', [&](auto& message) { loggers.Warn(message + L"b"); }));
    loggers.Add(std::make_unique<TracingLogger>(trace, L'c'));
    loggers.Info(L"x");
    EXPECT_EQ(trace, L"a0x b0xa c1xab c0xa b0x a1xb c0xba c1xb c0x ");
}

TEST(SynchronizedLogger, TakesMessagesFromManyThreads)
{
    std::wstring trace;
    SynchronizedLogger loggers;
    loggers.Add(std::make_unique<TracingLogger>(trace, L'a'));
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(
            [&]
            {
                for (int message = 0; message < 500; ++message)
                    loggers.Info(L"x");
            });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(trace.size(), 8000U);
}
