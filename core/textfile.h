// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace core {

/// What reading a file gave: its bytes, or why there are none.
struct FileText {
    std::string bytes;
    std::error_code failure;

    /// There is no such file.
    bool missing() const { return failure == std::errc::no_such_file_or_directory; }
};

/// Reads a whole file. What is no regular file (a folder, a pipe, a device) is refused and never waited for;
/// so is a file of more than a gigabyte.
FileText readtext(const std::filesystem::path& file);

/// Makes a file hold `bytes`, whole or not at all: at every moment the name leads to the old file or to the new one.
/// A link stays and what it leads to is replaced; permissions are kept. A file that is write-protected or no regular
/// file is refused. Returns why it failed; the old file is then untouched and nothing else is left behind.
std::error_code replacetext(const std::filesystem::path& file, std::string_view bytes);

/// Makes a new file that holds `bytes`; refuses a name that is taken. Returns why it failed, as `replacetext`.
std::error_code createtext(const std::filesystem::path& file, std::string_view bytes);

} // namespace core
