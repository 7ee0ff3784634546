// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/access/accessbus.h"

#include <QDBusMessage>
#include <QDBusVariant>
#include <QFile>
#include <QStandardPaths>

#include <stdexcept>

namespace tests {
namespace {

constexpr int patience = 30000; // milliseconds
constexpr const char* launcher = "/usr/share/dbus-1/services/org.a11y.Bus.service";
constexpr const char* accessible = "org.a11y.atspi.Accessible";

/// The address of the bus on which assistive technology meets, which starts with this question.
QString accessaddress(const QString& sessionbus)
{
    const QDBusConnection session = QDBusConnection::connectToBus(sessionbus, QStringLiteral("session"));
    const QDBusMessage answer =
        session.call(QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                                    QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")),
                     QDBus::Block, patience);
    if (answer.type() != QDBusMessage::ReplyMessage)
        throw std::runtime_error("no bus for assistive technology: " + answer.errorMessage().toStdString());
    return answer.arguments().constFirst().toString();
}

QString startbus(QProcess& daemon)
{
    daemon.setStandardErrorFile(QProcess::nullDevice());
    daemon.start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
    QByteArray address;
    while (!address.endsWith('\n') && daemon.waitForReadyRead(patience))
        address += daemon.readAllStandardOutput();
    if (!address.endsWith('\n'))
        throw std::runtime_error("the message bus does not start");
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.trimmed());
    return QString::fromLatin1(address.trimmed());
}

} // namespace

QString AccessBus::missing()
{
    if (QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty())
        return QStringLiteral("dbus-daemon");
    return QFile::exists(QString::fromLatin1(launcher)) ? QString() : QStringLiteral("at-spi2-core");
}

AccessBus::AccessBus()
    : connection(QDBusConnection::connectToBus(accessaddress(startbus(daemon)), QStringLiteral("access")))
{
    if (!connection.isConnected())
        throw std::runtime_error("nobody answers on the bus for assistive technology");
}

AccessBus::~AccessBus()
{
    QDBusConnection::disconnectFromBus(QStringLiteral("access"));
    QDBusConnection::disconnectFromBus(QStringLiteral("session"));
    daemon.terminate();
    daemon.waitForFinished();
}

QDBusMessage AccessBus::call(const Node& node, const QString& interface, const char* method,
                             const QVariantList& arguments) const
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(node.service, node.path, interface, QString::fromLatin1(method));
    question.setArguments(arguments);
    QDBusMessage answer = connection.call(question, QDBus::Block, patience);
    if (answer.type() != QDBusMessage::ReplyMessage)
        throw std::runtime_error(node.path.toStdString() + " " + method + ": " + answer.errorMessage().toStdString());
    return answer;
}

QVariant AccessBus::property(const Node& node, const char* name) const
{
    const QDBusMessage answer = call(node, QStringLiteral("org.freedesktop.DBus.Properties"), "Get",
                                     {QString::fromLatin1(accessible), QString::fromLatin1(name)});
    return answer.arguments().constFirst().value<QDBusVariant>().variant();
}

std::vector<Node> AccessBus::children(const Node& node) const
{
    const QDBusMessage answer = call(node, QString::fromLatin1(accessible), "GetChildren");
    const auto list = answer.arguments().constFirst().value<QDBusArgument>();
    std::vector<Node> found;
    list.beginArray();
    while (!list.atEnd()) {
        QDBusObjectPath path;
        Node child;
        list.beginStructure();
        list >> child.service >> path;
        list.endStructure();
        child.path = path.path();
        found.push_back(child);
    }
    list.endArray();
    return found;
}

std::optional<Node> AccessBus::application(const QString& name) const
{
    for (const Node& each :
         children({QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/accessible/root")}))
        if (property(each, "Name").toString() == name)
            return each;
    return std::nullopt;
}

Heard AccessBus::hear(const Node& node) const
{
    const QString interface = QString::fromLatin1(accessible);
    return {node, call(node, interface, "GetRoleName").arguments().constFirst().toString(),
            property(node, "Name").toString()};
}

std::vector<Heard> AccessBus::tree(const Node& root) const
{
    std::vector<Heard> found{hear(root)};
    for (const Node& child : children(root)) {
        const std::vector<Heard> below = tree(child);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

void AccessBus::act(const Node& node) const
{
    call(node, QStringLiteral("org.a11y.atspi.Action"), "DoAction", {0});
}

} // namespace tests
