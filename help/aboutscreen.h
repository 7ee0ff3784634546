// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QDialog>
#include <QPixmap>

namespace help {

/// Says what the program is.
class AboutScreen : public QDialog {
    Q_OBJECT

public:
    /// `version` is "major.minor.revision".
    AboutScreen(ui::Look shown, const QPixmap& icon, const QString& version, QWidget* owner);

Q_SIGNALS:
    void cmdSysInfo_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void arrange(const QPixmap& icon, const QString& version);

    ui::Look look;
};

} // namespace help
