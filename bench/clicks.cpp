// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
// Times what a person waits for, on the real screens, from the event until everything is painted. Writes a row for each
// kind of act: its name, the median and the 99th percentile in milliseconds.

#include "app/program.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <random>
#include <stdexcept>
#include <vector>

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int rounds = 400;

/// Paints what is to be painted, and all that follows from it.
void settle()
{
    QApplication::processEvents();
}

double timed(const std::function<void()>& act)
{
    const auto begin = std::chrono::steady_clock::now();
    act();
    settle();
    return Milliseconds(std::chrono::steady_clock::now() - begin).count();
}

void report(const std::string& name, std::vector<double> times)
{
    std::ranges::sort(times);
    const auto rank = [&](double share) {
        return times.at(static_cast<std::size_t>(std::ceil(share * static_cast<double>(times.size()))) - 1);
    };
    std::cout << std::left << std::setw(40) << name << std::right << std::fixed << std::setprecision(2) << std::setw(10)
              << rank(0.5) << std::setw(10) << rank(0.99) << std::endl;
}

/// Nobody is there to answer a message.
class QuietDesktop : public ui::QtDesktop {
public:
    void tell(ui::Icon /*icon*/, const std::string& /*text*/) override {}
};

class Bench {
public:
    Bench()
    {
        program.open();
        program.start();
        settle();
    }

    void mainscreen();
    void help();
    void pages();

private:
    template <typename Control>
    Control* find(const QString& name)
    {
        auto* found = program.mainscreen.findChild<Control*>(name);
        if (!found)
            throw std::runtime_error("no control " + name.toStdString());
        return found;
    }

    void click(const QString& name)
    {
        auto* control = find<QWidget>(name);
        const QPointF middle = QRectF(control->rect()).center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QMouseEvent event(type, middle, control->mapToGlobal(middle), Qt::LeftButton, held, Qt::NoModifier);
            QApplication::sendEvent(control, &event);
        }
    }

    void choose(const char* name, int item)
    {
        auto* list = find<QComboBox>(QString::fromLatin1(name));
        list->setCurrentIndex(item);
        Q_EMIT list->activated(item);
    }

    int random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(chance); }

    /// Times `act` from states that differ: `prepare` is not timed.
    template <typename Prepare, typename Act>
    void repeat(const char* name, Prepare prepare, Act act)
    {
        std::vector<double> times;
        for (int i = 0; i < rounds; ++i) {
            prepare();
            settle();
            times.push_back(timed([&] { act(i); }));
        }
        report(name, times);
    }

    QTemporaryDir folder;
    QuietDesktop desktop;
    app::Program program{desktop};
    std::mt19937 chance{1}; // NOLINT(cert-msc32-c,cert-msc51-cpp): the same clicks in every run
};

QString member(const char* array, int index)
{
    return QStringLiteral("%1_%2").arg(QLatin1String(array)).arg(index);
}

void Bench::mainscreen()
{
    const auto nothing = [] {};
    const auto chord = [this] {
        click(QStringLiteral("key_25"));
        click(member("key", random(25)));
        click(member("Crd", random(28)));
    };
    const auto somenotes = [this] {
        if (random(6) == 0)
            click(QStringLiteral("key_25"));
    };
    repeat("a key", somenotes, [this](int) { click(member("key", random(25))); });
    repeat("a cell", somenotes, [this](int) { click(member("Text1", 6 + random(114))); });
    repeat("a chord button", nothing, [this](int) { click(member("Crd", random(28))); });
    repeat("a spelling", chord, [this](int i) { click(QLatin1String(i % 2 == 0 ? "cmdsharp" : "cmdflat")); });
    repeat("the lower transpose button", chord, [this](int) { click(QStringLiteral("botr")); });
    repeat("a hand", chord, [this](int i) { choose("cboleft", (i + 1) % 2); });
    repeat("a family", chord, [this](int) { choose("cbotype", random(8)); });
    choose("cbotype", 0);
    const int tunings = find<QComboBox>(QStringLiteral("cbotuning"))->count();
    repeat("a tuning", chord, [this, tunings](int) { choose("cbotuning", random(tunings)); });
    repeat("a capo", chord, [this](int) { choose("cbopreset", random(17)); });
}

void Bench::help()
{
    constexpr int openings = 25;
    std::vector<double> opens;
    std::vector<double> finds;
    for (int i = 0; i < openings; ++i) {
        opens.push_back(timed([this] { find<QAction>(QStringLiteral("mnuchelp"))->trigger(); }));
        auto* screen = find<QWidget>(QStringLiteral("helpinfo"));
        const int last = find<QComboBox>(QStringLiteral("cbo1"))->count() - 1;
        finds.push_back(timed([this, last] { choose("cbo1", last); }));
        screen->close();
        delete screen;
    }
    report("opening the complete help", opens);
    report("its last topic", finds);
}

std::string pagetext(std::size_t size)
{
    std::string text;
    while (text.size() < size)
        text += "E |---|---|-O-|---|---|---|---|---|---|---|---|\n";
    return text;
}

void Bench::pages()
{
    find<QAction>(QStringLiteral("mnuviewprint"))->trigger();
    settle();
    for (const std::size_t kilobytes : {1, 10, 100, 1000, 10000}) {
        const std::string text = pagetext(kilobytes * 1000);
        const std::string size = std::to_string(kilobytes) + " KB";
        const int turns = kilobytes > 100 ? 3 : 15;
        std::vector<double> loads;
        std::vector<double> fonts;
        std::vector<double> flushes;
        for (int i = 0; i < turns; ++i) {
            loads.push_back(timed([&] { program.stage.act([&] { program.session.loadpage(text); }); }));
            fonts.push_back(timed([&] { click(QLatin1String(i % 2 == 0 ? "cmdupfont" : "cmddownfont")); }));
            program.session.mnuguitar_Click();
            program.stage.act([this] { program.session.chordsnap(); });
            flushes.push_back(timed([this] { program.stage.act([this] { program.session.printfill(); }); }));
        }
        report("a page of " + size + ": load and show", loads);
        report("a page of " + size + ": font size", fonts);
        report("a page of " + size + ": flush and show", flushes);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    try {
        Bench bench;
        bench.mainscreen();
        if (QApplication::arguments().contains(QStringLiteral("--all"))) {
            bench.help();
            bench.pages();
        }
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
    return 0;
}
