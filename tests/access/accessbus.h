// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QProcess>
#include <QString>

#include <optional>
#include <vector>

namespace tests {

/// An object of the tree that assistive technology sees: who shows it, and its path there.
struct Node {
    QString service;
    QString path;

    bool operator==(const Node&) const = default;
};

/// What a node is to a person who hears it.
struct Heard {
    Node node;
    QString role; ///< "push button"
    QString name;
};

/// A message bus of its own with assistive technology's registry on it, for the program that is started next.
/// Environment variables lead to both. Everything is read and done over the bus alone.
class AccessBus {
public:
    /// What cannot be run here, such as "dbus-daemon"; empty: all is there.
    static QString missing();

    AccessBus();
    AccessBus(const AccessBus&) = delete;
    AccessBus& operator=(const AccessBus&) = delete;
    ~AccessBus();

    /// The program of a name that shows itself on the bus; none yet.
    std::optional<Node> application(const QString& name) const;
    std::vector<Node> children(const Node& node) const;
    Heard hear(const Node& node) const;
    /// The node and everything below it, from above.
    std::vector<Heard> tree(const Node& root) const;
    /// Does what the node is there for first: presses a button, picks an item.
    void act(const Node& node) const;

private:
    QVariant property(const Node& node, const char* name) const;
    QDBusMessage call(const Node& node, const QString& interface, const char* method,
                      const QVariantList& arguments = {}) const;

    QProcess daemon;
    QDBusConnection connection;
};

} // namespace tests
