#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

/// While it lives, no file of this process can be written beyond `size` bytes: to the writer, a disk that
/// fills up. Files that are larger already keep what they hold.
class FullDisk {
public:
    explicit FullDisk(rlim_t size = 1) : m_before(signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit lower{size, m_limit.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &lower), 0);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        signal(SIGXFSZ, m_before);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_limit{};
    sighandler_t m_before;
};
