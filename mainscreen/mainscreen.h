// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "mainscreen/menus.h"
#include "mainscreen/panel.h"

#include <QKeySequence>
#include <QMainWindow>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace mainscreen {

/// The main screen: menus over one canvas of panels. Its close box ends the program.
class MainScreen : public QMainWindow {
    Q_OBJECT

public:
    MainScreen(Session& shown, ui::Stage& entered, ui::Look& shared);

    /// Puts the menus and the panels on the window, which may be open already; they are seen from the first `display`.
    void furnish();

    /// Shows the session's state. Cheap when little has changed. After `furnish`.
    void display();

    /// Takes the largest comfortable size on its display and stands in its middle.
    void centre();

Q_SIGNALS:
    void lookchanged(); ///< another zoom, or other colours of the desktop

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void addnotekeys();
    void addzoomkeys();
    void onkeys(const QKeySequence& keys, std::function<void()> act);
    void sizeto(double zoom);
    void displaytips();
    QWidgetList barandmenus() const;
    void dressmenubar();
    void scalemenubar(double zoom);

    Session& session;
    ui::Stage& stage;
    ui::Look& look;
    ui::Canvas* canvas;
    std::unique_ptr<Menus> menus;
    std::vector<std::unique_ptr<Panel>> panels;
    std::optional<Tips> showntips;
};

} // namespace mainscreen
