#pragma once

#include <optional>
#include <panel/Look.hpp>
#include <QSize>
#include <QString>
#include <QStringList>
#include <vector>

namespace Panel {

/// What the user asks of the program. An empty text or list: not given.
struct CommandLine {
    /// A value to set: "object.parameter" and the text.
    struct Setting {
        QString parameter;
        QString text;
    };

    QString network;
    QString object;
    QString pool;
    QString screenshot;
    QStringList plugins;
    std::vector<Setting> settings;
    QSize size;
    Theme theme = Theme::System;
    bool rawValues = false;
    bool listCreators = false;
    bool values = false;
    bool help = false;
    bool version = false;

    /// Whether the program does something and ends, and needs no display for it.
    bool endsByItself() const { return listCreators || values || help || version || !screenshot.isEmpty(); }

    /// Reads the arguments, the program's name first. Nothing, and the reason in `error`, for an unknown option, a
    /// missing or a wrong argument.
    static std::optional<CommandLine> parse(QStringList const& arguments, QString& error);
    /// The text for `--help`. Needs the application object.
    static QString helpText();
};

} // namespace Panel
