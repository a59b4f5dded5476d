#pragma once

#include <QObject>
#include <QPointer>
#include <QSettings>
#include <QStringList>
#include <vector>

namespace Panel {

class MainWindow;

/// How the panel stood when it was closed, kept in a file from one start to the next: geometry, columns, docks and raw
/// values of the window, the order of the objects, and for each of the networks last open the chosen pool, the shown
/// object, the folded kinds and the further views. Values of parameters are none of it; those are saved in the network.
///
/// What the file does not say, and what is not there any more (an object, a pool, a screen), stays as it is in a window
/// without a session. A file that was damaged or written by somebody else counts as one that says less.
/// User-interface thread.
class Session : public QObject {
    Q_OBJECT

public:
    /// How many networks are remembered; the one that was not open for the longest time goes first.
    static constexpr int Capacity = 20;

    /// The file of the user: talo/talo_panel.ini in the folder for settings.
    static QString userFile();
    /// The file need not exist; it is made, with its folder, when there is something to keep.
    explicit Session(QString const& file, QObject* parent = nullptr);
    ~Session() override;

    /// Brings back in a window what was kept, for the network that is open and for each that is opened later. What is
    /// to be kept is written when the window is closed and when another network is opened in it. Once only.
    void follow(MainWindow& window);

signals:
    /// The file could not be written.
    void failed(QString const& reason);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct NetworkRecord {
        QString file;
        QString pool;
        QString object;
        /// The objects of the further views.
        QStringList views;
        /// The pool of each of them, empty for that of the window.
        QStringList viewPools;
        QByteArray docks;
        /// The folded sections, by the names of their objects.
        QMap<QString, QStringList> folded;
        QStringList foldedKinds;
        /// The chosen creators, by "object.parameter".
        QMap<QString, QString> editors;
    };

    void restoreWindow();
    void restoreNetwork();
    void keep();
    void keepNetwork(NetworkRecord const& network);
    /// The networks that were last open, the latest first.
    std::vector<NetworkRecord> networks();
    /// Names the docks with further views, by which the window knows them again, and returns which objects they show.
    QStringList nameViewDocks() const;
    /// The pools that they have as their own, in the same order.
    QStringList viewPools() const;

    QSettings settings_;
    QPointer<MainWindow> window_;
};

} // namespace Panel
