// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/companion.h"

#include "ui/paint.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainter>
#include <QProxyStyle>
#include <QScreen>

#include <algorithm>

namespace ui {
namespace {

constexpr double usable = 0.92; ///< of the display's free area, at most; the rest is the window's frame
constexpr double smallestzoom = 0.75;
constexpr double indicator = 14; ///< side of a check mark's box, in pixels at zoom 1

/// The desktop's style, with check boxes and option buttons that grow with the text beside them.
class IndicatorStyle : public QProxyStyle {
public:
    IndicatorStyle(const Look& shownlook, QObject* owner) : QProxyStyle(QApplication::style()->name()), look(shownlook)
    {
        setParent(owner);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return qRound(indicator * look.zoom());
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

private:
    const Look& look;
};

} // namespace

void Card::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paintbox(painter, look, rect(), look.theme().card, look.theme().hairline, 7);
}

Companion::Companion(const Look& mainlook, QWidget* owner) : QMainWindow(owner), look(mainlook), followed(mainlook) {}

void Companion::fit(std::function<void()> change)
{
    change();
    changes.push_back(std::move(change));
}

void Companion::fitfont(QWidget* control, Type type)
{
    fit([this, control, type] { control->setFont(look.font(type)); });
}

void Companion::fitindicator(QAbstractButton* control)
{
    fitfont(control, Type::text);
    control->setStyle(new IndicatorStyle(look, control));
}

void Companion::fitsize(QWidget* control, QSize atone)
{
    fit([this, control, atone] {
        if (atone.width() >= 0)
            control->setFixedWidth(scaled(atone.width()));
        if (atone.height() >= 0)
            control->setFixedHeight(scaled(atone.height()));
    });
}

void Companion::fitroom(QLayout* layout, int marginatone, int gapatone)
{
    fit([this, layout, marginatone, gapatone] {
        const int margin = scaled(marginatone);
        layout->setContentsMargins(margin, margin, margin, margin);
        layout->setSpacing(scaled(gapatone));
    });
}

QLabel* Companion::caption(const char* name, const char* text, Type type, int widthatone)
{
    auto* label = new QLabel(QString::fromUtf8(text), this);
    label->setObjectName(QString::fromUtf8(name));
    label->setTextFormat(Qt::PlainText);
    fitfont(label, type);
    if (widthatone == 0)
        return label;
    label->setWordWrap(true);
    fit([this, label, widthatone] {
        const int width = scaled(widthatone);
        label->setMinimumSize(0, 0); // a height for a width is never below it
        label->setFixedSize(width, label->heightForWidth(width));
    });
    return label;
}

void Companion::applyzoom(double zoom)
{
    look.setzoom(zoom);
    for (const auto& change : changes)
        change();
    for (QWidget* each : findChildren<QWidget*>())
        each->updateGeometry(); // what they want is kept from the zoom before
    setFixedSize(centralWidget()->sizeHint() + QSize(0, menuheight()));
}

int Companion::menuheight() const
{
    const auto* bar = findChild<QMenuBar*>();
    return bar ? bar->sizeHint().height() : 0;
}

void Companion::dress()
{
    dressedfor = followed.zoom();
    look.followpalette(QGuiApplication::palette());
    setPalette(look.palettefor(look.theme().surface));
    applyzoom(dressedfor);
    const QSize room = screen()->availableGeometry().size() * usable;
    const double share =
        std::min(static_cast<double>(room.width()) / width(), static_cast<double>(room.height()) / height());
    if (share < 1)
        applyzoom(std::max(smallestzoom, dressedfor * share));
}

void Companion::followzoom()
{
    if (isVisible() && dressedfor != followed.zoom())
        dress();
}

void Companion::centre()
{
    const QRect room = screen()->availableGeometry();
    const double left = room.left() + (room.width() - width()) / 2.0;
    const double top = room.top() + (room.height() - height()) / 2.0;
    move(qRound(left), qRound(top));
}

void Companion::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    dress();
    centre();
}

void Companion::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange && isVisible())
        dress();
}

void Companion::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QMainWindow::keyPressEvent(event);
}

void Companion::closeEvent(QCloseEvent* event)
{
    Q_EMIT closed();
    event->accept();
}

} // namespace ui
