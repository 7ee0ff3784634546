// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace tests {

/// A folder of the test's own, current and empty; at the end it goes and the former one is current again.
class Directory {
public:
    Directory();
    ~Directory();
    Directory(const Directory&) = delete;
    Directory& operator=(const Directory&) = delete;

    const std::filesystem::path path;

    /// Makes a file in it.
    void write(const std::string& name, const std::string& bytes) const;
    /// The bytes of a file in it; a failure of the test where there is none.
    std::string read(const std::string& name) const;
    /// The names in it, sorted, with a blank between.
    std::string names() const;

private:
    std::filesystem::path former;
};

} // namespace tests
