// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/kept.h"

#include <QFont>
#include <QStaticText>

namespace ui {

/// Texts on one line that are painted many times over: to lay one out takes longer than to paint it. They hold for one
/// family of type. A copy of this begins with none.
class Lettering {
public:
    /// A text as it stands in a font, its line ends and tabs as blanks; its size is in pixels. Holds until the next is
    /// asked for.
    const QStaticText& line(const QString& text, const QFont& font);

    void clear() { kept.clear(); }

private:
    struct Key {
        QString text;
        int pixels;
        int weight;

        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed) noexcept
        {
            return qHashMulti(seed, key.text, key.pixels, key.weight);
        }
    };

    static constexpr int mostlines = 500;

    Kept<Key, QStaticText> kept{mostlines};
};

} // namespace ui
