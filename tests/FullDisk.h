#pragma once

#include <csignal>
#include <sys/resource.h>

/// While it lives, no file of this process grows beyond so many bytes, as if the disk were full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t size) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_usual), 0);
        rlimit const limit{ size, m_usual.rlim_max };
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    FullDisk(FullDisk const&) = delete;
    FullDisk& operator=(FullDisk const&) = delete;
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_usual);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_usual{};
    void (*m_handler)(int);
};
