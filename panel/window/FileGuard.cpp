#include <panel/window/FileGuard.hpp>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace Panel {

namespace {

// Other programs write a file in several steps; the watcher is asked after the last one, in milliseconds.
constexpr int settlingTime = 200;

// No network is that large, in bytes. Its size says enough, and to read it would take long.
constexpr qint64 largestFile = 64 << 20;

/// Identifies what a file holds; empty for what is no file, which is never opened: a pipe would not answer.
QByteArray fingerprint(QString const& name) {
    QFileInfo const info(name);
    QFile file(name);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    if (info.size() > largestFile)
        return QByteArray::number(info.size());
    // Not against somebody who means to deceive, and several times as fast as the stronger ones.
    QCryptographicHash hash(QCryptographicHash::Md5);
    return hash.addData(&file) ? hash.result() : QByteArray();
}

} // namespace

FileGuard::FileGuard(QObject* parent) : QObject(parent) {
    timer_.setSingleShot(true);
    timer_.setInterval(settlingTime);
    connect(&timer_, &QTimer::timeout, this, &FileGuard::look);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, &timer_, qOverload<>(&QTimer::start));
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, &timer_, qOverload<>(&QTimer::start));
}

FileGuard::~FileGuard() = default;

void FileGuard::remember(QString const& file) {
    timer_.stop();
    if (!watcher_.files().isEmpty())
        watcher_.removePaths(watcher_.files());
    if (!watcher_.directories().isEmpty())
        watcher_.removePaths(watcher_.directories());
    file_ = file;
    remembered_ = told_ = file.isEmpty() ? QByteArray() : fingerprint(file);
    if (remembered_.isEmpty())
        return;
    // The folder as well: a file that is replaced is not watched any more.
    watcher_.addPaths({file, QFileInfo(file).absolutePath()});
}

FileGuard::State FileGuard::state() const {
    if (remembered_.isEmpty())
        return State::Same;
    auto const now = fingerprint(file_);
    if (now == remembered_)
        return State::Same;
    return now.isEmpty() ? State::Vanished : State::Changed;
}

void FileGuard::look() {
    if (!watcher_.files().contains(file_) && QFileInfo::exists(file_))
        watcher_.addPath(file_);
    auto const now = fingerprint(file_);
    if (std::exchange(told_, now) != now && now != remembered_)
        emit changed();
}

} // namespace Panel
