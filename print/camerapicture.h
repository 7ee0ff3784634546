// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/companion.h"

#include <QWidget>

namespace print {

/// A camera, made of five shapes that bear names.
class CameraPicture : public QWidget {
    Q_OBJECT

public:
    explicit CameraPicture(ui::Companion& screen);
};

} // namespace print
