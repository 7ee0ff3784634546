// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/printqueue.h"

#include <QLibrary>

#include <bit>

namespace ui {

// The toolkit hands over its file as the last thing that it does with a job and drops the answer; CUPS's own library,
// which the toolkit has loaded by then, still has it. To link that library would bring twenty others into memory at
// every start.
std::string queuerefusal()
{
    constexpr int firstfailure = 0x0200; // of the answers that cupsLastError gives
    QLibrary cups(QStringLiteral("cups"), 2);
    const auto answer = std::bit_cast<int (*)()>(cups.resolve("cupsLastError"));
    const auto words = std::bit_cast<const char* (*)()>(cups.resolve("cupsLastErrorString"));
    if (!answer || !words || answer() < firstfailure)
        return {};
    const char* told = words();
    return told ? told : "The print queue refused the job.";
}

} // namespace ui
