// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "help/rtf.h"
#include "help/search.h"
#include "ui/look.h"
#include "ui/selectorbox.h"

#include <QDialog>
#include <QLineEdit>
#include <QTextEdit>

namespace help {

/// The help viewer: a document, a list of topics that lead to its headings, and a box to find any text in it.
class HelpScreen : public QDialog {
    Q_OBJECT

public:
    /// Shows `paragraphs`; none leave the area empty. The look is its own: it stays as it was when the screen was
    /// opened.
    HelpScreen(ui::Look shown, const std::vector<Paragraph>& paragraphs, QWidget* owner);

Q_SIGNALS:
    void cmdpic_Click(); ///< the picture of the main screen is wanted

protected:
    void showEvent(QShowEvent* event) override;

private:
    void initvar();
    void dataload();
    void loaddata(const std::vector<Paragraph>& paragraphs);
    void dress();
    void arrange();
    void cbo1_Click(int item);
    void findcommand();
    void select(const Match& match);
    void showatop();
    void endform() { close(); }

    ui::Look look;
    Search search;
    QStringList titles;
    ui::SelectorBox* cbo1;
    QLineEdit* findtext;
    QTextEdit* helptext;
};

} // namespace help
