// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/selectorbox.h"

#include "ui/access.h"
#include "ui/partstyle.h"
#include "ui/selectoraccess.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <utility>

namespace ui {
namespace {

class TrimmedItems : public QStyledItemDelegate {
public:
    TrimmedItems(const Look& shownlook, QObject* parent) : QStyledItemDelegate(parent), look(shownlook) {}

    QString displayText(const QVariant& value, const QLocale& /*locale*/) const override
    {
        return value.toString().trimmed();
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        constexpr int above = 4; // and below the text, pixels at zoom 1
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, qRound(above * look.zoom()));
    }

private:
    const Look& look;
};

/// Whether a key is a letter or a digit by which an item is sought.
bool seeks(const QKeyEvent& key)
{
    const Qt::KeyboardModifiers held = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return held == Qt::NoModifier && !key.text().isEmpty() && key.text().front().isLetterOrNumber();
}

void paintchevron(QPainter& painter, const Look& look, const QPointF& middle, const QColor& colour)
{
    const double reach = 3.5 * look.zoom();
    QPainterPath path(middle + QPointF(-reach, -reach / 2));
    path.lineTo(middle + QPointF(0, reach / 2));
    path.lineTo(middle + QPointF(reach, -reach / 2));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(path, QPen(colour, 1.5 * look.zoom(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

} // namespace

SelectorBox::SelectorBox(const Look& shownlook, QWidget* parent) : QComboBox(parent), look(shownlook)
{
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setMaxVisibleItems(20);
    QAccessible::installFactory(selectorinterface);
    connect(this, &QComboBox::currentIndexChanged, this, &SelectorBox::tellofchange);
    connect(this, &QComboBox::activated, this, &SelectorBox::tellofactivation);
}

QSize SelectorBox::sizeHint() const
{
    constexpr int side = 28; // pixels at zoom 1
    return QSize(side, side) * look.zoom();
}

// A pick from the list comes as a change and then as an activation; one by typing or by assistive technology only as a
// change; one of the shown item only as an activation.
void SelectorBox::tellofchange(int item)
{
    toldof = item;
    Q_EMIT picked(item);
    // Asked for only now: a message box within would have taken it before the activation comes.
    QMetaObject::invokeMethod(
        this, [this] { toldof = -1; }, Qt::QueuedConnection);
}

void SelectorBox::tellofactivation(int item)
{
    if (std::exchange(toldof, -1) != item)
        Q_EMIT picked(item);
}

void SelectorBox::display(const QStringList& items, int index, const QString& text)
{
    const QSignalBlocker silent(this);
    if (listed != items) {
        clear();
        addItems(items);
        for (int item = 0; item < count(); ++item)
            setItemData(item, itemText(item).trimmed(), Qt::AccessibleTextRole);
        listed = items;
    }
    if (currentIndex() != index)
        setCurrentIndex(index);
    if (shown == text)
        return;
    shown = text;
    update();
    tellrenamed(this);
}

void SelectorBox::showPopup()
{
    if (!trimmeditems) // not before: the list itself is made here
        makelist();
    setFont(look.font(Type::text));
    setPalette(look.palettefor(look.theme().card));
    const int scrollbar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    view()->setMinimumWidth(view()->sizeHintForColumn(modelColumn()) + scrollbar); // or long names would be cut
    sincetyping.invalidate();
    QComboBox::showPopup();
}

void SelectorBox::makelist()
{
    auto* partstyle = new PartStyle(look, this);
    setStyle(partstyle);
    partstyle->dress(*view());
    view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded); // the platform's style may have switched it off
    view()->setItemDelegate(trimmeditems = new TrimmedItems(look, this));
    view()->installEventFilter(this);
}

void SelectorBox::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const Theme& theme = look.theme();
    paintbox(painter, look, rect(), underMouse() ? theme.hover : theme.button, theme.hairline, 5);
    const double margin = 8 * look.zoom();
    const double arrowroom = 22 * look.zoom();
    painttext(painter, look, QRectF(rect()).adjusted(margin, 0, -arrowroom, 0), shown.trimmed(), look.font(Type::text),
              theme.text, Qt::AlignLeft | Qt::AlignVCenter);
    paintchevron(painter, look, QPointF(width() - arrowroom / 2, height() / 2.0), theme.label);
    ring.paint(painter, look, *this, rect(), 5);
}

void SelectorBox::keyPressEvent(QKeyEvent* event)
{
    if (!seeks(*event))
        return QComboBox::keyPressEvent(event);
    if (const int item = sought(event->text(), currentIndex()); item >= 0)
        setCurrentIndex(item);
}

/// The opened list searches as the closed one does, but only moves: Enter picks.
bool SelectorBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || watched != view() || !seeks(static_cast<const QKeyEvent&>(*event)))
        return QComboBox::eventFilter(watched, event);
    const int item = sought(static_cast<const QKeyEvent&>(*event).text(), view()->currentIndex().row());
    if (item >= 0)
        view()->setCurrentIndex(model()->index(item, modelColumn(), rootModelIndex()));
    return true;
}

/// The next item from `current` on that begins, blanks aside, with what was typed without a pause; -1: none.
int SelectorBox::sought(const QString& typed, int current)
{
    const bool goeson = sincetyping.isValid() && sincetyping.elapsed() < QApplication::keyboardInputInterval();
    typedsofar = goeson ? typedsofar + typed : typed;
    sincetyping.start();
    const int from = goeson ? qMax(0, current) : current + 1;
    for (int step = 0; step < count(); ++step) {
        const int item = (from + step) % count();
        if (itemText(item).trimmed().startsWith(typedsofar, Qt::CaseInsensitive))
            return item;
    }
    return -1;
}

void SelectorBox::focusInEvent(QFocusEvent* event)
{
    ring.comes(*event);
    QComboBox::focusInEvent(event);
}

} // namespace ui
