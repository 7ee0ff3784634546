// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/directory.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>

#include <unistd.h>

namespace tests {
namespace {

namespace fs = std::filesystem;

fs::path newfolder()
{
    std::string name = (fs::canonical(fs::temp_directory_path()) / "tonefret-XXXXXX").string();
    if (!::mkdtemp(name.data()))
        throw std::runtime_error("cannot make " + name);
    return name;
}

} // namespace

Directory::Directory() : path(newfolder()), former(fs::current_path())
{
    fs::current_path(path);
}

Directory::~Directory()
{
    std::error_code gone;
    fs::current_path(former, gone);
    fs::permissions(path, fs::perms::owner_all, gone);
    fs::remove_all(path, gone);
}

void Directory::write(const std::string& name, const std::string& bytes) const
{
    std::ofstream file(path / name, std::ios::binary);
    file << bytes;
}

std::string Directory::read(const std::string& name) const
{
    std::ifstream file(path / name, std::ios::binary);
    EXPECT_TRUE(file) << "no file " << name << "; there are: " << names();
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Directory::names() const
{
    std::set<std::string> found;
    for (const fs::directory_entry& entry : fs::directory_iterator(path))
        found.insert(entry.path().filename().string());
    std::string all;
    for (const std::string& name : found)
        all += (all.empty() ? "" : " ") + name;
    return all;
}

} // namespace tests
