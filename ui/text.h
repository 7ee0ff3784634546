// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

namespace ui {

inline QString totext(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// "key_0": the name of a member of an array of controls.
inline QString membername(const char* array, int index)
{
    return QString::fromLatin1("%1_%2").arg(QLatin1String(array)).arg(index);
}

} // namespace ui
