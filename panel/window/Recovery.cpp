#include <panel/window/Recovery.hpp>

#include <network/SaveFile.hpp>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace Panel {

namespace {

// How long an edit may be unkept, in milliseconds.
constexpr int writingDelay = 3000;

// More panels than anybody has open on one file.
constexpr int places = 16;

/// The content of a recovery file; nothing for one that cannot be read, or is of another network.
Recovery::Found readFile(QString const& name, QString const& networkFile) {
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    auto const content = QJsonDocument::fromJson(file.readAll()).object();
    auto const values = content.value(QLatin1String("values")).toObject();
    if (content.value(QLatin1String("file")).toString() != networkFile || values.isEmpty())
        return {};
    return {QDateTime::fromString(content.value(QLatin1String("written")).toString(), Qt::ISODate),
            QJsonDocument(values).toJson()};
}

} // namespace

QString Recovery::userFolder() {
    auto const set = qEnvironmentVariable("XDG_STATE_HOME");
    auto const state = QDir::isAbsolutePath(set) ? set : QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/talo/recovery");
}

Recovery::Recovery(Document& document, QString folder, QObject* parent)
    : QObject(parent), document_(document), folder_(std::move(folder)) {
    timer_.setInterval(writingDelay);
    connect(&timer_, &QTimer::timeout, this, &Recovery::write);
    connect(&document, &Document::modifiedChanged, this, &Recovery::showModified);
    connect(&document, &Document::opened, this, &Recovery::followFile);
    connect(&document, &Document::saved, this, [this] {
        if (document_.path() != networkFile_)
            followFile();
    });
    followFile();
    // It may have been modified before.
    if (document_.isModified())
        showModified(true);
}

Recovery::~Recovery() = default;

void Recovery::followFile() {
    // The old network was saved, or its values were given up.
    if (!found_.written.isValid())
        discard();
    lock_.reset();
    found_ = {};
    isOpenElsewhere_ = hasFailed_ = false;
    networkFile_ = document_.path();
    if (!networkFile_.isEmpty())
        takePlace();
    emit fileChanged();
}

void Recovery::takePlace() {
    if (!QDir().mkpath(folder_))
        return;
    std::unique_ptr<QLockFile> empty;
    // A place where values were left behind comes before an empty one.
    for (int place = 0; place < places; ++place) {
        if (empty && !QFileInfo::exists(fileOf(place, "lock")) && !QFileInfo::exists(fileOf(place, "json")))
            continue;
        auto lock = std::make_unique<QLockFile>(fileOf(place, "lock"));
        // A lock does not grow old; one of a process that has ended counts as none.
        lock->setStaleLockTime(0);
        if (!lock->tryLock(0)) {
            isOpenElsewhere_ = isOpenElsewhere_ || lock->error() == QLockFile::LockFailedError;
            continue;
        }
        found_ = readFile(fileOf(place, "json"), networkFile_);
        if (found_.written.isValid()) {
            lock_ = std::move(lock);
            place_ = place;
            return;
        }
        if (!empty) {
            empty = std::move(lock);
            place_ = place;
        }
    }
    lock_ = std::move(empty);
}

QString Recovery::fileOf(int place, char const* suffix) const {
    auto const hash = QCryptographicHash::hash(networkFile_.toUtf8(), QCryptographicHash::Sha256).toHex().left(32);
    return folder_ + QStringLiteral("/%1-%2.%3").arg(QLatin1String(hash)).arg(place).arg(QLatin1String(suffix));
}

void Recovery::showModified(bool modified) {
    if (found_.written.isValid())
        return;
    if (!modified)
        discard();
    else if (!timer_.isActive())
        timer_.start();
}

void Recovery::write() {
    timer_.stop();
    if (!document_.isModified()) {
        discard();
        return;
    }
    if (networkFile_.isEmpty())
        return;
    QString failure;
    if (!lock_)
        failure = tr("The unsaved values cannot be kept in %1.").arg(folder_);
    else if (auto const reason = writeFile(document_.network()->unsavedValues()); !reason.isEmpty())
        failure = tr("The unsaved values cannot be kept in %1: %2").arg(fileOf(place_, "json"), reason);
    if (!failure.isEmpty() && !std::exchange(hasFailed_, true))
        emit failed(failure);
}

QString Recovery::writeFile(QByteArray const& values) const {
    QJsonObject const content{{QStringLiteral("file"), networkFile_},
                              {QStringLiteral("written"), QDateTime::currentDateTime().toString(Qt::ISODate)},
                              {QStringLiteral("values"), QJsonDocument::fromJson(values).object()}};
    auto const json = QJsonDocument(content).toJson();
    QSaveFile target(fileOf(place_, "json"));
    if (!target.open(QIODevice::WriteOnly) || target.write(json) != json.size())
        return target.errorString();
    return Talo::commitSaveFile(target);
}

void Recovery::discard() {
    timer_.stop();
    found_ = {};
    if (lock_)
        QFile::remove(fileOf(place_, "json"));
}

} // namespace Panel
