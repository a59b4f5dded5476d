#pragma once

#include <network/Network.hpp>
#include <parameters/commands/ParameterCommands.hpp>
#include <parameters/ParameterPanel.hpp>
#include <parameters/PoolSource.hpp>
#include <QAction>
#include <QObject>
#include <vector>

namespace Panel {

class Document;
class ObjectList;
class ViewStack;

/// The commands for many values at once: those of a section, of an object, and of all objects. They act where the row
/// is that has the focus, or had it before a menu took it, and otherwise on the object in the middle of the window.
/// User-interface thread.
class ObjectCommands : public QObject {
    Q_OBJECT

public:
    /// All of them must outlive the commands.
    ObjectCommands(Document& document, ViewStack& views, ObjectList const& list,
                   Talo::ParameterCommands const& rowCommands, Talo::PoolSource& pools, QObject* parent = nullptr);
    ~ObjectCommands() override;

    /// Reset of the section, of the object and of all objects, in the order in which a menu shows them.
    QList<QAction*> resetActions() const { return {resetSection_, resetObject_, resetAll_}; }
    /// Copy of the section, and copy and paste of the chosen objects, in the order in which a menu shows them.
    QList<QAction*> clipboardActions() const { return {copySection_, copyObjects_, pasteObjects_}; }
    /// Enables what can be done, as before a menu with the actions is shown.
    void updateActions();
    /// The panel that the commands act on; null for none.
    Talo::ParameterPanel* panel() const;

signals:
    /// A command is about to change values: pending edits are to be written.
    void commitRequested();
    /// A command left something as it was: a sentence.
    void refused(QString const& reason);

private:
    QAction* makeAction(char const* name, QString const& text, void (ObjectCommands::*run)());
    Kolt::ParameterPtr currentParameter() const;
    void resetSection();
    void resetObject();
    void resetAll();
    /// The chosen objects, or the one in a further view that has the focus.
    std::vector<Kolt::ObjectPtr> chosenObjects() const;
    Kolt::PoolPtr pool() const;
    void copySection();
    void copyObjects();
    void pasteObjects();

    Document& document_;
    ViewStack& views_;
    ObjectList const& list_;
    Talo::ParameterCommands const& rowCommands_;
    Talo::PoolSource& pools_;
    QAction* const resetSection_;
    QAction* const resetObject_;
    QAction* const resetAll_;
    QAction* const copySection_;
    QAction* const copyObjects_;
    QAction* const pasteObjects_;
};

} // namespace Panel
