// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "help/pictures.h"

namespace help {

/// Shows a numbered picture of the main screen and names its parts.
class PictureScreen : public ui::Companion {
    Q_OBJECT

public:
    /// `camera` takes the pictures, in the desktop's colours.
    PictureScreen(const ui::Look& mainlook, std::function<Portrait()> camera, QWidget* owner);

private:
    Portraits portraits;
};

} // namespace help
