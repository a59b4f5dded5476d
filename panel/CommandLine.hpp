#pragma once

#include <optional>
#include <panel/look/Look.hpp>
#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QStringList>
#include <vector>

namespace Panel {

/// What the user asks of the program. An empty text or list: not given.
struct CommandLine {
    Q_DECLARE_TR_FUNCTIONS(Panel::CommandLine)

public:
    /// A value to set: "object.parameter" and the text.
    struct Setting {
        QString parameter;
        QString text;
    };

    QString network;
    QString object;
    QString pool;
    QString screenshot;
    /// Plug-in files besides those that are found.
    QStringList plugins;
    /// Plug-in files instead of those that are found.
    QStringList onlyPlugins;
    std::vector<Setting> settings;
    QSize size;
    Theme theme = Theme::System;
    /// The factor by which everything is drawn larger, as Qt reads it.
    QString scale;
    /// A language as in "de" or "pt_BR"; empty: that of the system.
    QString language;
    bool rightToLeft = false;
    bool gallery = false;
    /// The state that the gallery shows first, by its key.
    QString state;
    /// Whether the last session comes back and this one is kept.
    bool session = true;
    bool rawValues = false;
    bool listCreators = false;
    bool values = false;
    bool help = false;
    bool version = false;

    /// Whether the program does something and ends, and needs no display for it.
    bool isBatch() const { return listCreators || values || help || version || !screenshot.isEmpty(); }

    /// Reads the arguments, the program's name first. Nothing, and the reason in `error`, for an unknown option, a
    /// missing or a wrong argument, or options that exclude each other.
    static std::optional<CommandLine> parse(QStringList const& arguments, QString& error);
    /// The text for `--help`. Needs the application object.
    static QString helpText();
};

} // namespace Panel
