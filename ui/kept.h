// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>

namespace ui {

/// What was made once and is kept to be used again, the most recently used of it. A copy begins with nothing kept.
template <typename Key, typename Value>
class Kept : public QCache<Key, Value> {
public:
    using QCache<Key, Value>::QCache;
    Kept(const Kept& other) : QCache<Key, Value>(other.maxCost()) {}
    ~Kept() = default;
    Kept& operator=(const Kept& other)
    {
        if (this != &other)
            this->clear();
        return *this;
    }
};

} // namespace ui
