// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/warmup.h"

#include <QLibrary>

#include <bit>
#include <system_error>

namespace app {

// The toolkit itself has the library open, and takes over what was read. The thread knows nothing of the toolkit.
std::jthread warmfonts()
{
    const auto read = std::bit_cast<int (*)()>(QLibrary::resolve(QStringLiteral("fontconfig"), 1, "FcInit"));
    if (!read)
        return {};
    try {
        return std::jthread([read] { read(); });
    } catch (const std::system_error&) {
        return {}; // the start only takes longer
    }
}

} // namespace app
