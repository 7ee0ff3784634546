// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/button.h"
#include "ui/look.h"

#include <QAbstractButton>
#include <QAction>
#include <QKeyCombination>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>

#include <functional>
#include <optional>
#include <vector>

class QAbstractScrollArea;

namespace ui {

class PartStyle;

/// A group of controls on a ground of its own.
class Card : public QWidget {
public:
    Card(const Look& shownlook, QWidget* parent) : QWidget(parent), look(shownlook) {}

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Look& look;
};

/// A screen that stands over the main screen, in the middle of the display: as large as the main screen's zoom makes
/// it, or as the display has room for. It follows the zoom and the desktop's theme while it is open. Escape closes it
/// where the control that has the keyboard has no use for it, and Enter presses the button that the keyboard is at, or
/// else the screen's own.
class Companion : public QMainWindow {
    Q_OBJECT

public:
    using Handler = std::function<void()>;

    /// Qt::Dialog for one that asks or tells something and is left again, Qt::Window for one that is worked on.
    Companion(const Look& mainlook, QWidget* owner, Qt::WindowType kind);

    /// Takes over the zoom of the main screen and the desktop's theme, and the size that the contents need now.
    void followlook();

    // What stands on the screen is made and fitted by these; lengths are pixels at zoom 1.

    /// Does something at once and again whenever the zoom or the theme changes: what depends on `shownlook`.
    void fit(Handler change);
    void fitfont(QWidget* control, Type type);
    void fitindicator(QAbstractButton* control);                  ///< a check box or an option button, its text too
    void fitsize(QWidget* control, QSize atone);                  ///< -1 leaves a side free
    void fitroom(QLayout* layout, int marginatone, int gapatone); ///< room around a layout and between its parts
    void fitbox(QLineEdit* box);
    void fitarea(QAbstractScrollArea* area); ///< of text
    /// A text that breaks its lines within a width; a width of 0: on one line.
    QLabel* caption(const char* name, const char* text, Type type, int widthatone = 0);
    Button* button(const char* name, const char* text, const char* tip, Handler handler);
    /// A card whose parts go into `content`, a layout that has no owner yet.
    Card* card(QLayout* content);

    const Look& shownlook() const { return look; }
    int scaled(double pixelsatone) const { return qRound(pixelsatone * look.zoom()); }

    static constexpr int edge = 16; ///< room around what stands on a screen, in pixels at zoom 1
    static constexpr int gap = 8;   ///< room between its parts

Q_SIGNALS:
    void closed(); ///< however it is closed, once each time

protected:
    /// Has what stands in `content`, a layout that has no owner yet, fill the screen.
    void setcontent(QLayout* content, int gapatone = gap);
    QMenu* addmenu(const char* name, const char* text);
    QAction* additem(QMenu* menu, const char* name, const char* text, Handler handler, QKeyCombination keys = {});
    /// The button that Enter presses.
    void setenter(QAbstractButton* button) { pressedbyenter = button; }

    /// The size to open with of a screen that a person can make larger and smaller, at the look's zoom. None: the
    /// screen is as large as its contents need.
    virtual std::optional<QSize> openingsize() const { return std::nullopt; }
    /// The screen has its look, its size and its place.
    virtual void dressed() {}

    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    Look look;

private:
    void dress();
    void applyzoom(double zoom);
    void shrinkinto(QSize room);
    void takesize(double zoombefore, QSize room);
    void takefreesize(QSize opening, double zoombefore, QSize room);
    QSize smallest() const;
    QSize withmenus(QSize content) const;
    void centre();
    void keepondisplay();

    const Look& followed;
    bool opened = false; ///< it has its first size and place
    QSizeF freesize;     ///< of a screen that a person can size, in pixels at zoom 1
    QSize given;         ///< that it was resized to last by itself
    std::vector<Handler> changes;
    PartStyle* partstyle;
    QAbstractButton* pressedbyenter = nullptr;
};

} // namespace ui
