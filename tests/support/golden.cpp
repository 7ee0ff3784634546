// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/golden.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace tests {

bool updatesgolden()
{
    return std::getenv(goldenswitch) != nullptr; // NOLINT(concurrency-mt-unsafe): one thread
}

void expectgolden(const std::string& name, const std::string& text)
{
    const std::filesystem::path file = std::filesystem::path(TONEFRET_GOLDEN) / (name + ".txt");
    if (updatesgolden()) {
        std::ofstream(file, std::ios::binary) << text;
        return;
    }
    std::ifstream stream(file, std::ios::binary);
    ASSERT_TRUE(stream) << file << " is missing; " << goldenswitch << "=1 writes it";
    const std::string expected{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_EQ(text, expected) << file;
}

} // namespace tests
