// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/arguments.h"

#include <QCommandLineParser>
#include <QStandardPaths>

#include <filesystem>
#include <system_error>

namespace app {
namespace {

constexpr const char* usage = "Usage: tonefret [--user-data]\n"
                              "A chord calculator for keyboard and stringed instruments.\n"
                              "\n"
                              "  --user-data    work in the user's data folder, not in the current one\n"
                              "  -h, --help     say this and end\n"
                              "  -v, --version  say which version this is and end\n";

Arguments refusal(const std::string& reason)
{
    return {.userdata = false, .answer = "tonefret: " + reason + "\nTry \"tonefret --help\".\n", .refused = true};
}

} // namespace

Arguments readarguments(const QStringList& words)
{
    const QCommandLineOption userdata(QStringLiteral("user-data"));
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")});
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions({userdata, help, version});
    if (!parser.parse(words))
        return refusal(parser.errorText().toStdString());
    if (!parser.positionalArguments().isEmpty())
        return refusal("no file or word is expected, but \"" + parser.positionalArguments().constFirst().toStdString() +
                       "\" was given");
    if (parser.isSet(help))
        return {.answer = usage};
    if (parser.isSet(version))
        return {.answer = "tonefret " TONEFRET_VERSION "\n"};
    return {.userdata = parser.isSet(userdata), .answer = {}};
}

std::string enteruserdata()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const std::filesystem::path folder = std::filesystem::path(data.toStdU16String()) / "tonefret";
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    if (!failure)
        std::filesystem::current_path(folder, failure);
    return failure ? folder.string() + ": " + failure.message() : std::string();
}

} // namespace app
