// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <string>

namespace app {

/// What the program is asked for where it is started.
struct Arguments {
    bool userdata = false; ///< work in the user's data folder instead of the current one
    std::string answer;    ///< to be written out instead of starting; empty: start
    bool refused = false;  ///< the answer says what is wrong
};

/// Reads the command line, its first word being the program's name. Qt's own options are to be taken out before.
Arguments readarguments(const QStringList& words);

/// Makes the user's data folder, $XDG_DATA_HOME/tonefret, where it is missing, and makes it the current one. Returns
/// why that failed, and then the current folder is what it was; empty: it did not.
std::string enteruserdata();

} // namespace app
