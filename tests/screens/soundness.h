// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/program.h"

#include <string>
#include <vector>

namespace tests {

/// What holds of the screens and the state behind them after every event, whatever a person did.
class Soundness {
public:
    explicit Soundness(app::Program& tested);

    void expectreadouts() const;   ///< the eight readouts show the slots, the two names are those of the slots
    void expectspelled() const;    ///< every note name on the main screen and in its dialog is that of the mode
    void expectentries() const;    ///< entries are whole, and the arrange screen shows each at its own place
    void expectcompanions() const; ///< the edit screen and the page show their state
    void expectplaces() const;     ///< the keyboard acts on what is seen, and each cell that is seen can be clicked
    void expectsound() const;

    /// A click where a control is hidden and nothing else stands: it acts on nothing. `which` picks the control.
    /// Returns what was clicked at; empty where no control of the screen is hidden.
    std::string clickhidden(QWidget& screen, unsigned which) const;

    /// Exchanges two entries on the arrange screen: it changes their places and nothing else.
    std::string exchange(QWidget& arrange, unsigned which) const;

    /// The state that a click may change, as text.
    std::string digest() const;

private:
    std::string shown(const QWidget* control) const;

    app::Program& program;
    mainscreen::Session& session = program.session;
    std::vector<QWidget*> notes;
    std::vector<QWidget*> keys;
    std::vector<QWidget*> cells;
    std::vector<QWidget*> rows; ///< of the transpose rows, the upper one first
    QWidget* name;
    QWidget* alternate;
};

/// Bytes that the program has allocated at the moment. Without the sanitizers the C library counts what it keeps at
/// hand for a thread's next allocations as allocated: some kilobytes, up and down. The tests run with that store off.
std::size_t allocated();

} // namespace tests
