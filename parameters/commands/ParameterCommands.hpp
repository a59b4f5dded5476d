#pragma once

#include <parameters/input/GestureWatcher.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <QAction>
#include <QObject>
#include <QPointer>

namespace Talo {

/// The commands that act on one parameter: reset to the default, copy, paste. As actions for a menu, with shortcuts,
/// they act on the row that has the focus, or had it before a menu took it; each row offers them in a context menu as
/// well. Reset and paste are steps of the host's history. User-interface thread.
class ParameterCommands : public QObject {
    Q_OBJECT

public:
    /// `gestures` must outlive the commands.
    explicit ParameterCommands(GestureWatcher& gestures, QObject* parent = nullptr);
    ~ParameterCommands() override;

    /// In the order in which a menu shows them.
    QList<QAction*> actions() const { return {resetAction_, copyAction_, pasteAction_}; }
    /// Enables the actions as the chosen row asks for, as before a menu with them is shown.
    void updateActions();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// Nothing was done, for this reason: a sentence.
    void refused(QString const& reason);

private:
    QAction* makeAction(char const* objectName, QString const& text, QKeySequence const& shortcut,
                        void (ParameterCommands::*command)(ParameterRow&));
    void focusChanged(QWidget* widget);
    void reset(ParameterRow& row);
    void copy(ParameterRow& row);
    void paste(ParameterRow& row);

    GestureWatcher& gestures_;
    QAction* const resetAction_;
    QAction* const copyAction_;
    QAction* const pasteAction_;
    QPointer<ParameterRow> row_;
};

} // namespace Talo
