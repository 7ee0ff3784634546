// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzz.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <vector>

// Tries a reader with the inputs that were found before, without a fuzzer: replay FILE|FOLDER... In a folder each file
// is an input, in a file each line: `fuzz/corpus.py` says how bytes are written there.

namespace {

namespace fs = std::filesystem;

std::string contents(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The bytes of a line: `\\` is a backslash, `\` and two hexadecimal digits the byte of that number.
std::string unpacked(std::string_view line)
{
    constexpr int sixteen = 16;
    std::string bytes;
    while (!line.empty()) {
        const bool marked = line.front() == '\\' && line.size() > 1;
        const bool number = marked && line[1] != '\\' && line.size() > 2;
        bytes += number ? static_cast<char>(std::stoi(std::string(line.substr(1, 2)), nullptr, sixteen)) : line.front();
        line.remove_prefix(number ? 3 : marked ? 2 : 1);
    }
    return bytes;
}

std::vector<std::string> inputs(const fs::path& path)
{
    std::vector<std::string> all;
    if (fs::is_directory(path)) {
        for (const fs::directory_entry& entry : fs::directory_iterator(path))
            all.push_back(contents(entry.path()));
    } else {
        std::ifstream lines(path);
        for (std::string line; std::getline(lines, line);)
            all.push_back(unpacked(line));
    }
    return all;
}

} // namespace

int main(int argc, char** argv)
{
    std::size_t tried = 0;
    for (int i = 1; i < argc; ++i)
        for (const std::string& input : inputs(argv[i])) {
            // A fault ends the process: what was tried last has to be seen.
            std::ofstream(std::string(argv[0]) + ".last", std::ios::binary) << input;
            // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
            ++tried;
        }
    std::cout << tried << " inputs broke nothing\n";
    return tried > 0 ? 0 : 1;
}
