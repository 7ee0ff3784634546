// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLayout>
#include <QMainWindow>

#include <functional>
#include <vector>

namespace ui {

/// A group of controls on a ground of its own.
class Card : public QWidget {
public:
    Card(const Look& shownlook, QWidget* parent) : QWidget(parent), look(shownlook) {}

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Look& look;
};

/// A screen that stands over the main screen: as large as the main screen's zoom makes it, or as the display has room
/// for, in the middle of the display. Its size follows from what stands on it. Escape closes it, where the control that
/// has the keyboard has no use for it.
class Companion : public QMainWindow {
    Q_OBJECT

public:
    Companion(const Look& mainlook, QWidget* owner);

Q_SIGNALS:
    void closed(); ///< however it is closed, once each time

protected:
    /// Does something at once and again whenever the zoom or the theme changes: what depends on `look`.
    void fit(std::function<void()> change);
    void fitfont(QWidget* control, Type type);
    void fitindicator(QAbstractButton* control);                  ///< a check box or an option button, its text too
    void fitsize(QWidget* control, QSize atone);                  ///< pixels at zoom 1; -1 leaves a side free
    void fitroom(QLayout* layout, int marginatone, int gapatone); ///< pixels at zoom 1
    /// A text that breaks its lines within a width in pixels at zoom 1; a width of 0: on one line.
    QLabel* caption(const char* name, const char* text, Type type, int widthatone = 0);
    /// Takes over a zoom of the main screen that has changed.
    void followzoom();

    int scaled(double pixelsatone) const { return qRound(pixelsatone * look.zoom()); }

    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    Look look;

private:
    void dress();
    void applyzoom(double zoom);
    int menuheight() const;
    void centre();

    const Look& followed;
    double dressedfor = 0; ///< zoom of the main screen at that time
    std::vector<std::function<void()>> changes;
};

} // namespace ui
