// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "help/rtf.h"
#include "help/search.h"
#include "ui/companion.h"
#include "ui/selectorbox.h"

#include <QLineEdit>
#include <QTextEdit>

namespace help {

/// The help viewer: a document, a list of topics that lead to its headings, and a box to find any text in it.
class HelpScreen : public ui::Companion {
    Q_OBJECT

public:
    /// Shows `paragraphs`; none leave the area empty.
    HelpScreen(const ui::Look& mainlook, std::vector<Paragraph> paragraphs, QWidget* owner);

Q_SIGNALS:
    void cmdpic_Click(); ///< the picture of the main screen is wanted

protected:
    std::optional<QSize> openingsize() const override;
    void dressed() override;
    void showEvent(QShowEvent* event) override;

private:
    void initvar();
    void dataload();
    void loaddata();
    void dressparts();
    QLayout* arrange();
    void cbo1_Click(int item);
    void findcommand();
    void select(const Match& match);
    int attop() const;
    void scrollto(int position, int roomabove);
    void endform() { close(); }

    std::vector<Paragraph> document;
    const ui::Theme* filledtheme = nullptr; ///< that the document's colours are of
    double filledzoom = 0;                  ///< that its fonts are of
    std::optional<int> viewed;              ///< the position at the upper edge, while the look changes
    Search search;
    QStringList titles;
    ui::SelectorBox* cbo1;
    QLineEdit* findtext;
    QTextEdit* helptext;
};

} // namespace help
