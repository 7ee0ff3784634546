// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/warmup.h"

#include <QFontDatabase>
#include <QLibrary>

namespace app {

FontWarmup::FontWarmup() : reader([this] { run(); }) {}

FontWarmup::~FontWarmup()
{
    if (!reader.joinable())
        return;
    tell(Toolkit::notcoming);
    reader.join();
}

void FontWarmup::tell(Toolkit news)
{
    toolkit = news;
    toolkit.notify_one();
}

void FontWarmup::finish()
{
    reader.join();
}

void FontWarmup::run()
{
    // The toolkit itself has this library open.
    const auto read = reinterpret_cast<int (*)()>(QLibrary::resolve(QStringLiteral("fontconfig"), 1, "FcInit"));
    if (!read)
        return;
    read();
    toolkit.wait(Toolkit::awaited);
    if (toolkit == Toolkit::made)
        QFontDatabase::families();
}

} // namespace app
