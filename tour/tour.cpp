// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
// Plays a short walk on the real screens and keeps a picture of each stop, so that the program can be seen where there
// is no display. The pictures of the README are made the same way.

#include "app/program.h"
#include "ui/canvas.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFontDatabase>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPalette>
#include <QTemporaryFile>
#include <QTextStream>

#include <stdexcept>

namespace {

/// A person's hands on one program.
class Walker {
public:
    /// The pictures are kept in a folder, with `pictureending` behind their names.
    Walker(app::Program& walked, const QDir& kept, const char* pictureending)
        : program(walked), folder(kept), ending(QString::fromLatin1(pictureending))
    {
    }

    void click(const char* name) const
    {
        auto* control = find<QWidget>(name);
        const QPointF middle = QRectF(control->rect()).center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QMouseEvent event(type, middle, control->mapToGlobal(middle), Qt::LeftButton, held, Qt::NoModifier);
            QApplication::sendEvent(control, &event);
        }
    }

    void choose(const char* name, const char* item) const
    {
        auto* list = find<QComboBox>(name);
        const int index = list->findText(QString::fromLatin1(item));
        if (index < 0)
            throw std::runtime_error(std::string(name) + " has no item " + item);
        list->setCurrentIndex(index);
        Q_EMIT list->activated(index);
    }

    void pick(const char* item) const { find<QAction>(item)->trigger(); }

    void keep(const char* name) const { keep(name, program.mainscreen); }

    /// The menus grow with the window, which is to be as high as they then are.
    void zoomto(double zoom) const
    {
        const auto* canvas = static_cast<const ui::Canvas*>(program.mainscreen.centralWidget());
        for (int turn = 0; turn < 2; ++turn)
            program.mainscreen.resize(canvas->sizeat(zoom) + QSize(0, program.mainscreen.menuBar()->height()));
    }

    /// Opens a screen by its item in the menus, keeps its picture and closes it.
    void keepscreen(const char* name, const char* item, const char* screen) const
    {
        pick(item);
        auto* opened = find<QWidget>(screen);
        keep(name, *opened);
        opened->close();
    }

    void keepopen(const char* name, const char* screen) const { keep(name, *find<QWidget>(screen)); }
    void close(const char* screen) const { find<QWidget>(screen)->close(); }

private:
    /// Pictures of large screens have single pixels; small ones are kept as a sharp display shows them.
    void keep(const char* name, QWidget& screen) const
    {
        constexpr int large = 1400;
        QApplication::processEvents();
        const QString path = folder.filePath(QString::fromLatin1(name) + ending + QStringLiteral(".png"));
        QImage picture = screen.grab().toImage();
        if (picture.width() > large)
            picture = picture.scaledToWidth(screen.width(), Qt::SmoothTransformation);
        if (!picture.save(path, nullptr, 0)) // as small as can be
            throw std::runtime_error("cannot write " + path.toStdString());
        QTextStream(stdout) << path << '\n';
    }

    template <typename Control>
    Control* find(const char* name) const
    {
        auto* found = program.mainscreen.findChild<Control*>(QString::fromLatin1(name));
        if (!found)
            throw std::runtime_error(std::string("no control ") + name);
        return found;
    }

    app::Program& program;
    QDir folder;
    QString ending;
};

QPalette darkpalette()
{
    QPalette palette(QColor(0x2D, 0x30, 0x35), QColor(0x23, 0x25, 0x28));
    palette.setColor(QPalette::Highlight, QColor(0xE0, 0x8A, 0x5E));
    return palette;
}

/// The same pictures everywhere: a platform without a display has no font of its own choosing.
void usepicturefont()
{
    const QString wanted = QStringLiteral("Inter");
    if (QFontDatabase::families().contains(wanted))
        QApplication::setFont(QFont(wanted, QApplication::font().pointSize()));
}

/// The screens of the user's own tunings, with some in store.
void customwalk(app::Program& program, const Walker& walker)
{
    for (std::size_t place = 0; const char* name : {"Open C, parlour guitar", "Banjo, double C",
                                                    "Cigar box, three strings", "Bouzouki", "Baritone ukulele, low D"})
        program.session.customtable.at(place++) = {name, "03070740"};
    walker.pick("mnucustom");
    program.session.editform.txtname_Change("Nashville, high strung");
    walker.click("cmdsettings");
    walker.click("cmdret_5");
    walker.keepopen("custom", "custom");
    walker.click("cmdarrange");
    walker.keepopen("arrange", "arrange");
    walker.close("arrange");
    walker.close("custom");
}

/// Chords on a guitar, photographed and laid out.
void camerawalk(const Walker& walker)
{
    walker.choose("cbotype", "       GUITAR");
    walker.choose("cbopreset", "0 normal - open");
    walker.keepscreen("camquestion", "mnusnap", "camquestion");
    walker.pick("mnuguitar");
    for (const char* type : {"Crd_0", "Crd_1", "Crd_3", "Crd_4"}) {
        walker.click(type);
        walker.click("cordcam");
    }
    walker.keepopen("camera", "ccamera");
    walker.click("cmdview");
    walker.keepopen("page", "mprint");
    walker.keepscreen("printdialog", "mnuprintchord", "printdialog");
    walker.close("mprint");
}

void helpwalk(const Walker& walker)
{
    walker.pick("mnuchelp");
    walker.keepopen("help", "helpinfo");
    walker.click("cmdpic");
    walker.keepopen("helppicture", "helppicture");
    walker.close("helpinfo");
    walker.keepscreen("basichelp", "mnubhelp", "mhelp");
    walker.keepscreen("about", "mnuabout", "frmAbout");
}

/// Every screen that stands over the main screen.
void companionwalk(app::Program& program, const Walker& walker)
{
    camerawalk(walker);
    customwalk(program, walker);
    helpwalk(walker);
    walker.click("Text1_2");
    walker.keepopen("retune", "frmretune");
    walker.close("frmretune");
}

/// A chord on a guitar, as it is measured and twice as large.
void guitarwalk(const Walker& walker)
{
    walker.click("key_25");
    walker.click("key_0");
    walker.click("Crd_4");
    walker.keep("guitar");
    walker.zoomto(2);
    walker.keep("guitar-200");
    walker.zoomto(1);
}

void lightwalk(const QDir& folder)
{
    ui::QtDesktop desktop;
    app::Program program(desktop);
    program.open();
    program.start();
    const Walker walker(program, folder, "");
    walker.zoomto(1);
    walker.keep("start");
    for (const char* key : {"key_0", "key_4", "key_7"})
        walker.click(key);
    walker.keep("notes");
    walker.click("key_25");
    walker.click("key_0");
    walker.click("Crd_3");
    walker.keep("chord");
    guitarwalk(walker);
    walker.choose("cbotype", "      UKULELE");
    walker.choose("cbopreset", "3rd fret  capo / bar");
    walker.keep("capo");
    walker.choose("cbopreset", "show all notes");
    walker.keep("ukulele");
    companionwalk(program, walker);
}

void darkwalk(const QDir& folder)
{
    QApplication::setPalette(darkpalette());
    ui::QtDesktop desktop;
    app::Program program(desktop);
    program.open();
    program.start();
    const Walker walker(program, folder, "-dark");
    walker.zoomto(1);
    guitarwalk(walker);
    companionwalk(program, walker);
    walker.choose("cbotype", "        BANJO");
    walker.choose("cboleft", "Left Hand");
    walker.choose("cbopreset", "2nd fret  capo / bar");
    walker.click("cmdauto");
    walker.click("key_25");
    walker.click("key_2");
    walker.click("Crd_3");
    walker.keep("banjo");
}

/// Where there is no display it is a large and sharp one; the platform would have a small one.
void usepicturedisplay(const QTemporaryFile& described)
{
    qputenv("QT_SCALE_FACTOR", "2");
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + described.fileName().toLocal8Bit());
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryFile display;
    if (display.open()) {
        display.write(R"({"screens": [{"name": "tour", "x": 0, "y": 0, "width": 4000, "height": 3000, "logicalDpi": 96,
                         "logicalBaseDpi": 96, "dpr": 1}]})");
        display.close();
    }
    usepicturedisplay(display);
    const QApplication application(argc, argv);
    try {
        const QStringList arguments = QApplication::arguments();
        const QDir folder(QDir(arguments.size() > 1 ? arguments.at(1) : QStringLiteral(".")).absolutePath());
        // Settings that somebody keeps in the current directory are not to be seen in the pictures.
        if (!folder.mkpath(QStringLiteral(".")) || !QDir::setCurrent(folder.path()))
            throw std::runtime_error("cannot make the folder " + folder.path().toStdString());
        usepicturefont();
        lightwalk(folder);
        darkwalk(folder);
    } catch (const std::exception& failure) {
        QTextStream(stderr) << "tour: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
