// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace help {

inline constexpr std::string_view completehelp{"helpmc.rtf"};
/// Name of a basic help document. It is kept, and opened by nothing: the basic help is a screen of its own.
inline constexpr std::string_view basichelp{"helpmb.rtf"};

/// Where help documents may be, in the order in which they are looked for: the folder that was current at start-up, the
/// data folder beside the program's own (../share/tonefret), and the one that it was installed into, if any.
std::vector<std::filesystem::path> helpfolders(const std::filesystem::path& startdir,
                                               const std::filesystem::path& programdir,
                                               const std::filesystem::path& installed);

/// The bytes of the first file of that name that can be read; nothing when there is none. Of a file of more than
/// 16 MiB only the beginning is read.
std::optional<std::string> loaddata(std::string_view name, const std::vector<std::filesystem::path>& folders);

} // namespace help
