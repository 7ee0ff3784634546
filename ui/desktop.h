// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ui {

enum class Icon : std::uint8_t { plain, information, critical };

enum class Answer : std::uint8_t { yes, no };

enum class Direction : std::uint8_t { open, save };

/// A choice of a file dialog: which files it lists.
struct FileFilter {
    const char* name;    ///< as it is shown
    const char* pattern; ///< "*.txt"; "*.*" lists every file, one without a dot too
};

/// The screens that stand over the main screen.
enum class Screen : std::uint8_t {
    frmretune,
    custom,
    arrange,
    ccamera,
    camquestion,
    mprint,
    printdialog,
    helpinfo,
    mhelp,
    frmAbout
};

/// Room on a page of paper, upright, for characters of one size.
struct PaperRoom {
    int characters; ///< side by side, from the left edge that can be printed on
    int lines;      ///< one below the other
};

/// Pages to be printed as one job, upright, in Courier New.
struct PrintJob {
    std::string name;                            ///< by which the printer lists it
    int points;                                  ///< size of the characters
    std::vector<std::vector<std::string>> pages; ///< lines from the top; they fit the paper
    std::filesystem::path pdf;                   ///< the file to be written instead of printing; empty: print
};

/// What the program asks of a person and a desktop. The screens give a real one, tests one that records and answers.
/// Nothing else shows a message box, picks a file, opens and closes a screen, prints or beeps.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Shows a message with an OK button under the program's title and waits for it.
    virtual void tell(Icon icon, const std::string& text) = 0;

    /// Asks a question with the buttons Yes and No; closing it without an answer, or Escape, is No. An
    /// empty title stands for the program's.
    virtual Answer ask(const std::string& text, const std::string& title) = 0;

    /// Lets the person pick a file that is there, or name one to save to. Nothing: cancelled. Asks nothing about a file
    /// that exists, and takes a name as it was typed.
    virtual std::optional<std::filesystem::path> pickfile(Direction direction, std::span<const FileFilter> filters) = 0;

    /// Shows a screen; one that is open comes to the front. Returns at once.
    virtual void open(Screen screen) = 0;
    virtual void close(Screen screen) = 0;

    /// Puts a text on the clipboard.
    virtual void copy(const std::string& text) = 0;

    /// The sound of the desktop, once.
    virtual void beep() = 0;

    /// Whether there is a printer, the default one or any other.
    virtual bool hasprinter() = 0;

    /// Room on the printer's paper for characters of `points`; without a printer, on the paper of a PDF file.
    virtual PaperRoom paperroom(int points) = 0;

    /// Prints to the default printer, or to the first one where none is the default, or writes the PDF file. Adds no
    /// margins, page numbers or line breaks. Returns why it failed; empty: it did not.
    virtual std::string print(const PrintJob& job) = 0;

    /// Hides and closes every screen, the main screen last, and ends the program.
    virtual void leave() = 0;
};

} // namespace ui
