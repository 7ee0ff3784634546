// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <stdexcept>

#include <unistd.h>

namespace tests {

/// As long as it lives this process has no more rights than any user, also where root runs the tests.
class OrdinaryUser {
public:
    OrdinaryUser()
    {
        if (root && (::setresgid(nobody, nobody, 0) != 0 || ::setresuid(nobody, nobody, 0) != 0))
            throw std::runtime_error("root's rights cannot be laid down");
    }
    ~OrdinaryUser()
    {
        if (root && (::setresuid(0, 0, 0) != 0 || ::setresgid(0, 0, 0) != 0))
            std::abort();
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    /// Whether files of somebody else, root, can be made before.
    static bool haveothers() { return ::geteuid() == 0; }

private:
    static constexpr uid_t nobody = 65534;

    bool root = ::geteuid() == 0;
};

} // namespace tests
