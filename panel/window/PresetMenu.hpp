#pragma once

#include <network/PresetFile.hpp>
#include <panel/window/Document.hpp>
#include <parameters/ParameterPanel.hpp>
#include <QMenu>

namespace Panel {

/// The presets of the object that a panel shows: applies, saves and removes them. They are kept beside the network file
/// (PresetFile), which is read each time the menu is shown. User-interface thread.
class PresetMenu : public QMenu {
    Q_OBJECT

public:
    /// `panel` says which panel the menu is for; it may return null. `document` must outlive the menu, which belongs to
    /// the parent.
    PresetMenu(Document& document, std::function<Talo::ParameterPanel*()> panel, QWidget* parent);
    ~PresetMenu() override;

signals:
    /// Values are about to be read or changed: pending edits are to be written.
    void commitRequested();
    /// Something failed: what, and the reason.
    void failed(QString const& title, QString const& reason);
    /// Something was done that the user should read of.
    void reported(QString const& text);

private:
    /// What the menu is for when it is shown; the object is null if there is none.
    struct Subject {
        Kolt::ObjectPtr object;
        Kolt::PoolPtr pool;
        Talo::PresetScope scope;
    };
    Subject subject() const;
    QString presetFile() const;
    /// After the network was saved elsewhere: copies the presets, unless there are some already.
    void takeAlong();
    void fill();
    void addPresets(Talo::PresetFile const& presets, Talo::PresetScope const& scope);
    void apply(QString const& name);
    void askAndSave();
    bool mayReplace(QString const& name);
    void remove(QString const& name);
    /// Reports that the presets cannot be read or written.
    void reportFailure(QString const& reason);

    Document& document_;
    std::function<Talo::ParameterPanel*()> const panel_;
    // Beside the file that the network had last.
    QString file_;
};

} // namespace Panel
