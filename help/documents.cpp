// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/documents.h"

#include <algorithm>
#include <cstdint>
#include <fstream>

namespace help {
namespace {

constexpr std::uintmax_t mostbytes = std::uintmax_t{16} << 20U;

std::optional<std::string> readfile(const std::filesystem::path& path)
{
    std::error_code unreadable;
    if (!std::filesystem::is_regular_file(path, unreadable))
        return std::nullopt;
    const std::uintmax_t size = std::filesystem::file_size(path, unreadable);
    if (unreadable)
        return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(std::min(size, mostbytes)), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (file.bad())
        return std::nullopt;
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

} // namespace

std::vector<std::filesystem::path> helpfolders(const std::filesystem::path& startdir,
                                               const std::filesystem::path& programdir,
                                               const std::filesystem::path& installed)
{
    std::vector<std::filesystem::path> folders{startdir, programdir / ".." / "share" / "tonefret"};
    if (!installed.empty())
        folders.push_back(installed);
    return folders;
}

std::optional<std::string> loaddata(std::string_view name, const std::vector<std::filesystem::path>& folders)
{
    for (const std::filesystem::path& folder : folders)
        if (auto bytes = readfile(folder / name))
            return bytes;
    return std::nullopt;
}

} // namespace help
