// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/printing/scheduler.h"

#include <QStandardPaths>
#include <QTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <stdexcept>

namespace tests {
namespace {

namespace fs = std::filesystem;

constexpr int patience = 30000; // milliseconds until what does not come is a failure

constexpr const char* access = "Browsing Off\n"
                               "WebInterface No\n"
                               "DefaultAuthType None\n"
                               "LogLevel warn\n"
                               "<Location />\n"
                               "Order allow,deny\n"
                               "Allow all\n"
                               "</Location>\n";

/// Takes a job as the printer: the first argument is its number, the sixth its file.
constexpr const char* backend = "#!/bin/sh\n"
                                "[ $# -lt 6 ] && exit 0\n"
                                "cat \"$6\" >\"${DEVICE_URI#keep:}/$1.part\"\n"
                                "mv \"${DEVICE_URI#keep:}/$1.part\" \"${DEVICE_URI#keep:}/$1.pdf\"\n";

/// The scheduler is often in a folder that only the administrator's searches go through.
QString program()
{
    const QString found = QStandardPaths::findExecutable(QStringLiteral("cupsd"));
    return found.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("cupsd"), {QStringLiteral("/usr/sbin")})
                           : found;
}

/// Whether somebody listens at a socket. For a moment it is there, and refuses.
bool isheard(const fs::path& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.string().copy(address.sun_path, sizeof address.sun_path - 1);
    const int caller = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const bool heard = ::connect(caller, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(caller);
    return heard;
}

std::string filesof(const fs::path& folder)
{
    const std::string at = folder.string();
    return "ServerRoot " + at + "\nServerBin " + at + "/bin\nCacheDir " + at + "/cache\nStateDir " + at +
           "/state\nRequestRoot " + at + "/spool\nTempDir " + at + "/spool/tmp\nAccessLog " + at +
           "/access.log\nErrorLog " + at + "/error.log\nPageLog " + at + "/page.log\n";
}

std::string queuesof(Queue queue, const fs::path& folder)
{
    if (queue == Queue::none)
        return {};
    return "<DefaultPrinter " + std::string(Scheduler::queuename) +
           ">\nDeviceURI keep:" + (folder / "received").string() + "\nState Idle\nAccepting " +
           (queue == Queue::ready ? "Yes" : "No") + "\nErrorPolicy abort-job\nOpPolicy default\n</DefaultPrinter>\n";
}

} // namespace

QString Scheduler::missing()
{
    QStringList programs;
    if (program().isEmpty())
        programs += QStringLiteral("cupsd");
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
        programs += QStringLiteral("pdftotext");
    return programs.join(QStringLiteral(" and "));
}

Scheduler::Scheduler()
{
    qputenv("CUPS_SERVER", QByteArray::fromStdString((folder.path / "socket").string()));
    fs::create_directories(folder.path / "bin" / "backend");
    fs::create_symlink("/usr/lib/cups/daemon", folder.path / "bin" / "daemon");
    folder.write("bin/backend/keep", backend);
    fs::permissions(folder.path / "bin/backend/keep", fs::perms::owner_all);
    folder.write("cupsd.conf", "Listen " + (folder.path / "socket").string() + "\n" + access);
    folder.write("cups-files.conf", filesof(folder.path));
}

void Scheduler::start(Queue queue)
{
    stop();
    for (const char* leftover : {"received", "error.log", "spool", "cache", "state", "socket"})
        fs::remove_all(folder.path / leftover);
    fs::create_directories(folder.path / "received");
    fs::create_directories(folder.path / "spool" / "tmp"); // it makes the others itself
    folder.write("printers.conf", queuesof(queue, folder.path));
    const QString at = QString::fromStdString(folder.path.string());
    server.start(program(), {QStringLiteral("-f"), QStringLiteral("-c"), at + QStringLiteral("/cupsd.conf"),
                             QStringLiteral("-s"), at + QStringLiteral("/cups-files.conf")});
    if (!QTest::qWaitFor([this] { return isheard(folder.path / "socket"); }, patience))
        throw std::runtime_error("the scheduler does not start: " + log());
}

void Scheduler::stop()
{
    if (server.state() == QProcess::NotRunning)
        return;
    server.terminate();
    server.waitForFinished();
}

std::string Scheduler::receivedtext(int job, double pitch)
{
    const fs::path received = folder.path / "received" / (std::to_string(job) + ".pdf");
    if (!QTest::qWaitFor([&] { return fs::exists(received); }, patience))
        throw std::runtime_error("job " + std::to_string(job) + " did not come: " + log());
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), QStringLiteral("-fixed"), QString::number(pitch),
                  QString::fromStdString(received.string()), QStringLiteral("-")});
    if (!reader.waitForFinished(patience) || reader.exitCode() != 0)
        throw std::runtime_error("the job cannot be read");
    return reader.readAllStandardOutput().toStdString();
}

std::string Scheduler::log() const
{
    return fs::exists(folder.path / "error.log") ? folder.read("error.log") : "it has told nothing";
}

} // namespace tests
