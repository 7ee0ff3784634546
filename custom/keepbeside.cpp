// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/keepbeside.h"

#include "core/textfile.h"

#include <string>

namespace custom {
namespace {

namespace fs = std::filesystem;

fs::path damagedname(const fs::path& file, int number)
{
    const std::string ending = number == 1 ? "" : "-" + std::to_string(number);
    return file.parent_path() / ("tonefret.damaged" + ending + ".txt");
}

/// Leaves one name to the file, the free one. The name is taken first, so that nobody else's file is replaced.
std::error_code renameto(const fs::path& free, const fs::path& file)
{
    if (const auto taken = core::createtext(free, ""))
        return taken;
    std::error_code failure;
    fs::rename(file, free, failure);
    if (failure) {
        std::error_code ignored;
        fs::remove(free, ignored);
    }
    return failure;
}

} // namespace

std::error_code keepbeside(const fs::path& file)
{
    std::error_code unknown;
    if (!fs::is_regular_file(file, unknown))
        return unknown == std::errc::no_such_file_or_directory ? std::error_code() : unknown;
    const core::FileText kept = core::readtext(file);
    for (int number = 1;; ++number) {
        const fs::path name = damagedname(file, number);
        const auto failure = kept.failure ? renameto(name, file) : core::createtext(name, kept.bytes);
        if (failure != std::errc::file_exists)
            return failure;
    }
}

} // namespace custom
