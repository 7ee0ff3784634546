// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/desktop.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <map>

namespace ui {

/// The desktop that a person sits at.
class QtDesktop : public Desktop {
public:
    using Maker = std::function<QWidget*(QWidget* owner)>;

    /// The screen over which the others stand and which is left last.
    void setmain(QWidget* screen) { mainscreen = screen; }
    /// How a screen is made; it is made anew each time it is opened.
    void add(Screen screen, Maker maker) { makers[screen] = std::move(maker); }

    /// Where files are picked as long as none was; the current folder unless this is called.
    void pickfrom(const QString& folder) { pickfolder = folder; }

    /// What brings the screens up to date before a person is asked something in the middle of a procedure.
    void beforeasking(std::function<void()> show) { showall = std::move(show); }

    void tell(Icon icon, const std::string& text) override;
    Answer ask(const std::string& text, const std::string& title) override;
    std::optional<std::filesystem::path> pickfile(Direction direction, std::span<const FileFilter> filters) override;
    void open(Screen screen) override;
    void close(Screen screen) override;
    void leave() override;
    void copy(const std::string& text) override;
    void beep() override;
    bool hasprinter() override;
    PaperRoom paperroom(int points) override;
    std::string print(const PrintJob& job) override;

private:
    QWidget* owner() const;
    static void retire(QWidget& screen);

    std::function<void()> showall = [] {};
    QPointer<QWidget> mainscreen;
    QString pickfolder; ///< where a file was picked last; empty: the current one
    std::map<Screen, Maker> makers;
    std::map<Screen, QPointer<QWidget>> screens;
};

} // namespace ui
