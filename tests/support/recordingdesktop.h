// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/desktop.h"

#include <deque>
#include <string>
#include <vector>

namespace tests {

struct Told {
    ui::Icon icon;
    std::string text;

    bool operator==(const Told&) const = default;
};

struct Asked {
    std::string text;
    std::string title;

    bool operator==(const Asked&) const = default;
};

struct PickAsked {
    ui::Direction direction;
    std::vector<std::string> filters; ///< "name|pattern"

    bool operator==(const PickAsked&) const = default;
};

/// A desktop without a person: keeps what it was asked, in order.
class RecordingDesktop : public ui::Desktop {
public:
    std::vector<Told> told;
    std::vector<Asked> asked;
    std::deque<ui::Answer> answers; ///< to the questions to come; none left: No
    std::vector<PickAsked> pickasked;
    std::deque<std::filesystem::path> files; ///< to be picked; none left: cancelled
    std::vector<ui::Screen> opened;
    std::vector<ui::Screen> closed;
    int left = 0; ///< how often the program was ended
    std::vector<std::string> copied;
    int beeps = 0;
    bool printer = true;
    ui::PaperRoom room{80, 60};
    std::vector<int> paperasked; ///< points for which the paper's room was asked
    std::string printfailure;    ///< why printing fails; empty: it does not
    std::vector<ui::PrintJob> printed;

    void tell(ui::Icon icon, const std::string& text) override;
    ui::Answer ask(const std::string& text, const std::string& title) override;
    std::optional<std::filesystem::path> pickfile(ui::Direction direction,
                                                  std::span<const ui::FileFilter> filters) override;
    void open(ui::Screen screen) override;
    void close(ui::Screen screen) override;
    void leave() override;
    void copy(const std::string& text) override { copied.push_back(text); }
    void beep() override { ++beeps; }
    bool hasprinter() override { return printer; }
    ui::PaperRoom paperroom(int points) override;
    std::string print(const ui::PrintJob& job) override;
};

} // namespace tests
