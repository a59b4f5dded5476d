#pragma once

#include <lattice/ChangeSignal.hpp>
#include <lattice/UndoHistory.hpp>
#include <memory>
#include <network/Network.hpp>
#include <panel/window/FileGuard.hpp>
#include <parameters/commands/UndoText.hpp>
#include <QObject>
#include <QTimer>

namespace Panel {

/// The open network with its file: opens and saves it, knows whether there are unsaved changes, and asks before they
/// are lost. User-interface thread.
class Document : public QObject {
    Q_OBJECT

public:
    explicit Document(QObject* parent = nullptr);
    ~Document() override;

    /// Null until a network was opened.
    Talo::Network* network() const { return network_.get(); }
    /// Opens a network file in place of the open network. If the file is no network, the open one stays, and the reason
    /// is returned.
    QString open(QString const& file);
    /// Replaces the open network; null is ignored.
    void setNetwork(std::unique_ptr<Talo::Network> network);
    /// Writes the network with its values and uses that file from now on. Returns the reason if that fails.
    QString save(QString const& file);

    /// Whether the file still holds what was opened or saved last.
    FileGuard::State fileState() const { return guard_.state(); }

    /// Compares the values with the saved ones.
    bool isModified() const { return network_ && network_->isModified(); }
    /// Compares the values with the saved ones and emits `modifiedChanged`. A moment after a value has changed, the
    /// document does so by itself.
    void checkModified();

    /// The network's file, absolute and without links, so that a file has one name; empty without a file.
    QString path() const;
    /// The network's title or its file name; empty without a network.
    QString title() const;
    /// Records the edits of the open network; cleared when another one is opened.
    Kolt::UndoHistory& history() { return history_; }
    /// Names parameters by object and name, for the network that is open at the moment.
    Talo::ParameterNaming naming() const;

signals:
    /// The open network is about to be replaced; it still exists.
    void aboutToClose();
    /// The network is replaced; the old one, if there was one, still exists until this returns.
    void opened(Talo::Network* network);
    /// A network file was opened.
    void loaded(QString const& file);
    void saved(QString const& file);
    /// Another program changed or removed the file.
    void fileChanged();
    void modifiedChanged(bool modified);
    /// An action of the network was fired; the object that holds it and the parameter may be null, and so may the pool.
    void actionFired(Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool);

private:
    /// Emits `modifiedChanged` a moment from now: to compare all values takes a while.
    void checkModifiedLater();
    /// Compares the values that have changed and emits `modifiedChanged`.
    void checkChanged();

    Kolt::UndoHistory history_;
    std::unique_ptr<Talo::Network> network_;
    // Raised by the open network and those before it.
    std::shared_ptr<Kolt::ChangeSignal> const valueSignal_;
    FileGuard guard_;
    QTimer modifiedTimer_;
};

} // namespace Panel
