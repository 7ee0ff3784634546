// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/companion.h"

#include <QPixmap>

#include <functional>

namespace help {

/// Says what the program is.
class AboutScreen : public ui::Companion {
    Q_OBJECT

public:
    /// Paints the program's icon; `size` is in logical pixels, `ratio` that of the display's.
    using Icon = std::function<QPixmap(int size, double ratio)>;

    /// `version` is "major.minor.revision".
    AboutScreen(const ui::Look& mainlook, const Icon& icon, const QString& version, QWidget* owner);

Q_SIGNALS:
    void cmdSysInfo_Click();

private:
    QLabel* addicon(const Icon& icon);
    QLayout* addtexts(const QString& version);
    QLayout* addbuttons();
};

} // namespace help
