// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
// Plays a short walk on the real screens and keeps a picture of each stop, so that the program can be seen where there
// is no display. The pictures of the README are made the same way.

#include "app/program.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFontDatabase>
#include <QMouseEvent>
#include <QPalette>
#include <QTextStream>

#include <stdexcept>

namespace {

/// A person's hands on one program.
class Walker {
public:
    explicit Walker(app::Program& walked, const QDir& kept) : program(walked), folder(kept) {}

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
    void keep(const char* name, QWidget& screen) const
    {
        QApplication::processEvents();
        const QString path = folder.filePath(QString::fromLatin1(name) + QStringLiteral(".png"));
        if (!screen.grab().save(path))
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
void customwalk(app::Program& program, const Walker& walker, const std::string& ending)
{
    for (std::size_t place = 0; const char* name : {"Open C, parlour guitar", "Banjo, double C",
                                                    "Cigar box, three strings", "Bouzouki", "Baritone ukulele, low D"})
        program.session.customtable.at(place++) = {name, "03070740"};
    walker.pick("mnucustom");
    program.session.editform.txtname_Change("Nashville, high strung");
    walker.click("cmdsettings");
    walker.click("cmdret_5");
    walker.keepopen(("custom" + ending).c_str(), "custom");
    walker.click("cmdarrange");
    walker.keepopen(("arrange" + ending).c_str(), "arrange");
}

/// Chords on a guitar, photographed and laid out.
void camerawalk(const Walker& walker, const std::string& ending)
{
    walker.choose("cbotype", "       GUITAR");
    walker.choose("cbopreset", "0 normal - open");
    walker.pick("mnuguitar");
    for (const char* type : {"Crd_0", "Crd_1", "Crd_3", "Crd_4"}) {
        walker.click(type);
        walker.click("cordcam");
    }
    walker.keepopen(("camera" + ending).c_str(), "ccamera");
    walker.click("cmdview");
    walker.keepopen(("page" + ending).c_str(), "mprint");
    walker.close("mprint");
}

void lightwalk(const QDir& folder)
{
    ui::QtDesktop desktop;
    app::Program program(desktop);
    program.start();
    const Walker walker(program, folder);
    walker.keep("start");
    for (const char* key : {"key_0", "key_4", "key_7"})
        walker.click(key);
    walker.keep("notes");
    walker.click("key_25");
    walker.click("key_0");
    walker.click("Crd_3");
    walker.keep("chord");
    walker.click("key_25");
    walker.click("key_0");
    walker.click("Crd_4");
    walker.keep("guitar");
    walker.choose("cbotype", "      UKULELE");
    walker.choose("cbopreset", "3rd fret  capo / bar");
    walker.keep("capo");
    walker.choose("cbopreset", "show all notes");
    walker.keep("ukulele");
    camerawalk(walker, "");
    customwalk(program, walker, "");
    walker.keepscreen("help", "mnuchelp", "helpinfo");
    walker.keepscreen("basichelp", "mnubhelp", "mhelp");
    walker.keepscreen("about", "mnuabout", "frmAbout");
}

void darkwalk(const QDir& folder)
{
    QApplication::setPalette(darkpalette());
    ui::QtDesktop desktop;
    app::Program program(desktop);
    program.start();
    const Walker walker(program, folder);
    walker.choose("cbotype", "        BANJO");
    walker.choose("cboleft", "Left Hand");
    walker.choose("cbopreset", "2nd fret  capo / bar");
    walker.click("cmdauto");
    walker.click("key_2");
    walker.click("Crd_3");
    walker.keep("banjo");
    camerawalk(walker, "-dark");
    customwalk(program, walker, "-dark");
    walker.keepscreen("darkbasichelp", "mnubhelp", "mhelp");
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_SCALE_FACTOR", "2"); // pictures as a sharp display shows them
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
