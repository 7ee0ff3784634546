// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/started.h"

#include <array>
#include <string>
#include <vector>

namespace tests {

/// Camera and print page a second time, written apart from the program: plain steps over flat values. The main screen
/// is read off the session; the tests of the main screen have a model of their own for it.
class CameraModel {
public:
    explicit CameraModel(const mainscreen::Session& shown) : main(shown) {}

    int piano = 0;
    int chosen = 0;
    int snapshots = 0;
    int blocks = 0;
    std::array<std::string, 11> shot;
    std::array<std::string, 11> pending;
    int blockwidth = 0;
    int rowwidth = 0;
    std::string taken;
    std::string last;
    std::string kind;
    std::string left;
    std::vector<std::string> heard; ///< screens, messages and beeps in their order

    bool open = false;
    std::string text;
    std::string kept;
    std::string lines{"0"};
    std::string txtchar{"72"};
    std::string txtspace{"4"};
    std::string txtfont{"8"};
    int points = 8;
    bool mult = false;
    bool alt = true;
    std::string txttop;
    std::string txtleft;
    std::array<int, 7> stored{72, 4, 8, 0, 1, 3, 6}; ///< characters, spacing, font, multiple, alternate, top, left

    void photochord();
    void question(int mode);
    void setmode(int mode);
    void printfill();
    void allclear();
    void ask(const std::string& text, bool yes, bool camera);
    void view();
    void openpage();
    void charsize();
    void press(std::string& box, std::size_t setting, int change, int limit);
    void mexit();
    void loadpage(const std::string& file);
    void chordprint();
    void cmdprint();
    void told(const std::string& what) { heard.push_back(what); }

private:
    void chordsnap();
    void readfrets();
    void strings();
    void keyboard();
    bool pad();
    void place();
    void showcamera();
    void countlines();

    const mainscreen::Session& main;
    std::array<int, 6> pressed{};
    std::array<int, 6> further{};
    int top = 0;
};

} // namespace tests
