#pragma once

#include "TemporaryFolder.h"

#include <Utilities/FileLogger.h>

/// What the tests of FileLogger share: a clock that they turn, and the bytes of files.
class LogFolder
{
public:
    using DateTime = Vek::Framework::Utilities::DateTime;

    explicit LogFolder(unsigned long long maximumSize = 0, int keptFiles = 3)
        : m_maximumSize(maximumSize),
          m_keptFiles(keptFiles)
    {
    }

    /// A logger for the file "log" whose clock stands at 02:30:00.123 and is turned by TurnClock.
    Vek::Framework::Utilities::FileLogger Open()
    {
        return Vek::Framework::Utilities::FileLogger(m_folder.At(L"log"),
                                                     { m_maximumSize, m_keptFiles, [this] { return m_time; } });
    }

    void TurnClock(int milliseconds)
    {
        m_time = DateTime::FromTicks(m_time.GetTicks() + static_cast<unsigned long long>(milliseconds) * 10'000);
    }

    /// The file's bytes, or "none".
    std::string Read(std::string const& name = "log") const
    {
        std::ifstream file(m_folder.GetPath() / name, std::ios::binary);
        return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "none";
    }

    TemporaryFolder const& GetFolder() const { return m_folder; }

    static constexpr char c_time[] = "2024-10-27 02:30:00.123 ";

private:
    TemporaryFolder m_folder;
    unsigned long long m_maximumSize;
    int m_keptFiles;
    DateTime m_time = DateTime::FromTicks(DateTime::FromComponents(2024, 10, 27, 2, 30, 0).GetTicks() + 1'239'999);
};
