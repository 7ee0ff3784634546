// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

#include <sys/resource.h>

namespace tests {

/// No file can grow beyond some bytes, as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &former);
        const rlimit small{bytes, former.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &former);
        std::signal(SIGXFSZ, told); // NOLINT(cert-err33-c): it was taken before
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit former{};
    void (*told)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

} // namespace tests
