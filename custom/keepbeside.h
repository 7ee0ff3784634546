// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <system_error>

namespace custom {

/// Keeps a file that is about to be overwritten: copies it to tonefret.damaged.txt in its folder, or to
/// tonefret.damaged-2.txt, -3 ... where that is taken. A file that cannot be read is renamed so instead.
/// Where there is no file, or no regular one, there is nothing to keep. Returns why it failed.
std::error_code keepbeside(const std::filesystem::path& file);

} // namespace custom
