// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/screens/screentest.h"
#include "ui/companion.h"

namespace tests {

/// A screen that stands over the main screen, and what opens it.
struct CompanionRow {
    const char* screen;
    const char* opener; ///< a menu item, picked after `mode`
    const char* mode;   ///< a menu item to be picked first; none: nullptr
};

// clang-format off
inline constexpr CompanionRow companionrows[] = {
//  screen          opener             mode
  { "custom",       "mnucustom",       nullptr    },
  { "arrange",      "mnuarrange",      nullptr    },
  { "camquestion",  "mnusnap",         nullptr    },
  { "ccamera",      "mnusnap",         "mnupiano" },
  { "mprint",       "mnuviewprint",    "mnuguitar"},
  { "printdialog",  "mnuprintchord",   "mnuguitar"},
  { "helpinfo",     "mnuchelp",        nullptr    },
  { "helppicture",  "mnuchelp",        nullptr    },
  { "mhelp",        "mnubhelp",        nullptr    },
  { "frmAbout",     "mnuabout",        nullptr    },
  { "frmretune",    nullptr,           nullptr    },
};
// clang-format on

inline void PrintTo(const CompanionRow& row, std::ostream* out)
{
    *out << row.screen;
}

/// What opens any of the screens.
class CompanionOpener : public ScreenTest {
protected:
    ui::Companion& open(const CompanionRow& row)
    {
        session.customtable[0] = {"Open C", "03070740"};
        session.customtable[1] = {"Open D", "03070740"};
        for (const char* item : {row.mode, row.opener})
            if (item)
                pick(QString::fromLatin1(item));
        if (!row.opener)
            click(QStringLiteral("Text1_2"));
        if (row.screen == std::string_view("helppicture"))
            click(QStringLiteral("cmdpic"));
        auto* opened = dynamic_cast<ui::Companion*>(companion(row.screen));
        if (!opened || !opened->isVisible())
            throw std::runtime_error(std::string("not open: ") + row.screen);
        return *opened;
    }
};

/// One of the screens, open.
class CompanionTest : public CompanionOpener, public testing::WithParamInterface<CompanionRow> {
protected:
    CompanionTest() : screen(open(GetParam()))
    {
        QApplication::setCursorFlashTime(0); // a mark that comes and goes would make pictures differ
    }

    ui::Companion& screen;
};

inline std::string rowname(const testing::TestParamInfo<CompanionRow>& row)
{
    return row.param.screen;
}

} // namespace tests
