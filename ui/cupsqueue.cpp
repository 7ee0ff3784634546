// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/printqueue.h"

#include <cups/cups.h>

namespace ui {

// The toolkit hands over its file as the last thing that it does with a job and drops the answer; the queue's own
// library still has it.
std::string queuerefusal()
{
    return cupsLastError() < IPP_STATUS_REDIRECTION_OTHER_SITE ? std::string() : cupsLastErrorString();
}

} // namespace ui
