// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/portrait.h"

#include "help/basictexts.h"
#include "mainscreen/mainscreen.h"

#include <QMenuBar>
#include <QPainter>

namespace app {
namespace {

constexpr double badgezoom = 1.4; ///< the pictures are shown smaller than the screen is

/// A desktop on which nothing happens: the screen that is pictured asks and opens nothing.
class StillDesktop : public ui::Desktop {
public:
    void tell(ui::Icon /*icon*/, const std::string& /*text*/) override {}
    ui::Answer ask(const std::string& /*text*/, const std::string& /*title*/) override { return ui::Answer::no; }
    std::optional<std::filesystem::path> pickfile(ui::Direction /*direction*/,
                                                  std::span<const ui::FileFilter> /*filters*/) override
    {
        return std::nullopt;
    }
    void copy(const std::string& /*text*/) override {}
    void beep() override {}
    bool hasprinter() override { return false; }
    ui::PaperRoom paperroom(int /*points*/) override { return {}; }
    std::string print(const ui::PrintJob& /*job*/) override { return {}; }
    void open(ui::Screen /*screen*/) override {}
    void close(ui::Screen /*screen*/) override {}
    void leave() override {}
};

/// A part of the main screen by the controls that it is made of, and where on it its number stands.
struct Part {
    const char* label; ///< of the caption that names it
    const char* first; ///< control at one end
    const char* last;  ///< control at the other
    double x;          ///< share of the part's width
    double y;          ///< share of its height
};

// clang-format off
constexpr auto parts = std::to_array<Part>({
//  caption     from         to            number at
  { "Label32",  "",          "",            0.97,  0.66  },
  { "Label10",  "key_0",     "key_24",      0.5,   0.62  },
  { "Label16",  "Crd_0",     "Crd_27",      0.84,  1.12  },
  { "Label11",  "chord",     "note_5",      1.02,  0.0   },
  { "Label9",   "key_25",    "key_25",      0.5,  -0.35  },
  { "Label22",  "cordcam",   "cordcam",     0.5,  -0.35  },
  { "Label13",  "botl",      "botl",       -0.2,   0.0   },
  { "Label14",  "trans1_0",  "trans1_29",   0.42, -0.12  },
  { "Label29",  "cmdsharp",  "cmdauto",    -0.06,  0.5   },
  { "Label15",  "cbotype",   "optu",        1.0,   0.0   },
  { "Label25",  "Text1_0",   "Text1_5",    -0.55,  0.5   },
  { "Label12",  "Text1_6",   "Text1_119",   0.49,  1.1   },
});
// clang-format on
static_assert(parts.size() == help::basiccaptions.size());
static_assert(std::ranges::equal(
    parts, help::basiccaptions, {}, [](const Part& p) { return std::string_view(p.label); },
    [](const help::BasicCaption& c) { return std::string_view(c.label); }));

/// A main screen that nobody sees.
class Sitter {
public:
    Sitter() : screen(session, stage, look)
    {
        look.followpalette(screen.palette());
        session.initmain();
        session.initvariables();
        session.doflatsetup();
        int root = 0;
        session.noteentry(root);
        session.Crd_Click(0);
        screen.centre();
        screen.furnish();
        screen.display();
    }

    QPixmap numbered();
    QRect upper() { return {QPoint(0, 0), QPoint(screen.width(), around("family", "family").top() - margin())}; }
    QRect lower() { return {QPoint(0, around("family", "family").top() - margin()), screen.rect().bottomRight()}; }

private:
    int margin() const { return qRound(6 * look.zoom()); }
    QRect place(const char* name) const;
    QRect around(const char* first, const char* last) const { return place(first).united(place(last)); }

    StillDesktop desktop;
    mainscreen::Session session{desktop};
    ui::Stage stage{desktop};
    ui::Look look;
    mainscreen::MainScreen screen;
};

/// The place of a control; without a name, of the menus.
QRect Sitter::place(const char* name) const
{
    const QLatin1String wanted(name);
    const QWidget* control = wanted.isEmpty() ? screen.menuBar() : screen.findChild<QWidget*>(wanted);
    return control ? QRect(control->mapTo(&screen, QPoint()), control->size()) : QRect();
}

QPixmap Sitter::numbered()
{
    QPixmap picture = screen.grab();
    QPainter painter(&picture);
    ui::Look large = look;
    large.setzoom(badgezoom * look.zoom());
    for (int number = 1; const Part& part : parts) {
        const QRectF area = around(part.first, part.last);
        help::paintbadge(painter, area.topLeft() + QPointF(area.width() * part.x, area.height() * part.y), number++,
                         large);
    }
    return picture;
}

QPixmap cut(const QPixmap& picture, const QRect& area)
{
    const double ratio = picture.devicePixelRatio();
    return picture.copy(QRectF(QPointF(area.topLeft()) * ratio, QSizeF(area.size()) * ratio).toRect());
}

} // namespace

help::Portrait portrait()
{
    Sitter sitter;
    const QPixmap whole = sitter.numbered();
    return {whole, cut(whole, sitter.upper()), cut(whole, sitter.lower())};
}

QPixmap programicon(int size, double ratio)
{
    QPixmap icon(QSize(size, size) * ratio);
    icon.setDevicePixelRatio(ratio);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 64.0, size / 64.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x1E2126));
    painter.drawRoundedRect(QRectF(2, 2, 60, 60), 12, 12);
    painter.setBrush(QColor(0xF4F2ED));
    for (const int x : {8, 20, 32, 44})
        painter.drawRoundedRect(QRectF(x, 8, 11.5, 28), 2, 2);
    painter.setBrush(QColor(0x1E2126));
    for (const int x : {16, 40})
        painter.drawRect(QRectF(x, 8, 7, 17));
    painter.setPen(QPen(QColor(0xF4F2ED), 1.6));
    for (const int y : {42, 48, 54})
        painter.drawLine(8, y, 56, y);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xA8482A));
    painter.drawEllipse(QPointF(38, 48), 5, 5);
    return icon;
}

} // namespace app
