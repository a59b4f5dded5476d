#include <panel/window/Document.hpp>

#include <fractal/objects/ObjectFactory.hpp>
#include <QFileInfo>

namespace Panel {

namespace {

// How long the mark in the title may lag behind the values, in milliseconds.
constexpr int modifiedDelay = 100;

} // namespace

Document::Document(QObject* parent)
    : QObject(parent), valueSignal_(std::make_shared<Kolt::ChangeSignal>([this] {
          QMetaObject::invokeMethod(this, &Document::checkModifiedLater, Qt::QueuedConnection);
      })) {
    modifiedTimer_.setSingleShot(true);
    modifiedTimer_.setInterval(modifiedDelay);
    connect(&modifiedTimer_, &QTimer::timeout, this, &Document::checkChanged);
    connect(&guard_, &FileGuard::changed, this, &Document::fileChanged);
}

Document::~Document() {
    valueSignal_->stop();
}

QString Document::open(QString const& file) {
    auto result = Talo::Network::load(file, Fractal::makeObject);
    if (!result.network)
        return result.error;
    setNetwork(std::move(result.network));
    emit loaded(file);
    return {};
}

void Document::setNetwork(std::unique_ptr<Talo::Network> network) {
    if (!network)
        return;
    if (network_)
        emit aboutToClose();
    // The old one is deleted after its users have let go of it.
    auto const old = std::exchange(network_, std::move(network));
    guard_.remember(network_->file());
    for (auto const& object : network_->objects())
        for (auto const& parameter : object->parameters()) {
            parameter->setHistory(&history_);
            parameter->setChangeSignal(valueSignal_);
        }
    network_->actionHandler = [this](auto const& object, auto const& parameter, auto const& pool) {
        emit actionFired(object, parameter, pool);
    };
    emit opened(network_.get());
    checkModified();
}

QString Document::save(QString const& file) {
    QString reason;
    if (!network_)
        return tr("No network is open.");
    if (!network_->saveAs(file, &reason))
        return reason;
    guard_.remember(file);
    checkModified();
    emit saved(file);
    return {};
}

void Document::checkModifiedLater() {
    if (!modifiedTimer_.isActive())
        modifiedTimer_.start();
}

void Document::checkChanged() {
    // First, so that a change during the comparison is not missed.
    auto const changed = valueSignal_->awaitNext();
    emit modifiedChanged(network_ && network_->isModifiedAfter(changed));
}

void Document::checkModified() {
    valueSignal_->awaitNext();
    emit modifiedChanged(network_ && network_->isModifiedAfter(std::nullopt));
}

QString Document::path() const {
    if (!network_ || network_->file().isEmpty())
        return {};
    QFileInfo const file(network_->file());
    auto const canonical = file.canonicalFilePath();
    return canonical.isEmpty() ? file.absoluteFilePath() : canonical;
}

QString Document::title() const {
    if (!network_)
        return {};
    return network_->title().isEmpty() ? QFileInfo(network_->file()).fileName() : network_->title();
}

Talo::ParameterNaming Document::naming() const {
    return [this](Kolt::ParameterPtr const& parameter) { return network_ ? network_->nameOf(parameter) : QString(); };
}

} // namespace Panel
