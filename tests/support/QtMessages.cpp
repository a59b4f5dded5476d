#include "support/QtMessages.hpp"

#include <algorithm>
#include <stdexcept>

namespace {

QtMessages* receiver = nullptr;

} // namespace

QtMessages::QtMessages() {
    if (receiver != nullptr) {
        throw std::logic_error("Qt's messages are collected already");
    }
    receiver = this;
    previous_ = qInstallMessageHandler(&QtMessages::receive);
}

QtMessages::~QtMessages() {
    qInstallMessageHandler(previous_);
    receiver = nullptr;
}

void QtMessages::expect(QRegularExpression const& pattern) {
    if (!pattern.isValid()) {
        throw std::invalid_argument(pattern.errorString().toStdString());
    }
    std::lock_guard const lock(mutex_);
    expected_.push_back(pattern);
}

void QtMessages::allow(QRegularExpression const& pattern) {
    std::lock_guard const lock(mutex_);
    allowed_.push_back(pattern);
}

QStringList QtMessages::complaints() const {
    std::lock_guard const lock(mutex_);
    auto missing = expected_;
    QStringList sentences;
    for (auto const& message : received_) {
        if (std::any_of(allowed_.begin(), allowed_.end(),
                        [&](auto const& pattern) { return pattern.match(message).hasMatch(); })) {
            continue;
        }
        auto const found = std::find_if(missing.begin(), missing.end(),
                                        [&](auto const& pattern) { return pattern.match(message).hasMatch(); });
        if (found == missing.end()) {
            sentences << QStringLiteral("unexpected Qt message: %1").arg(message);
        } else {
            missing.erase(found);
        }
    }
    for (auto const& pattern : missing) {
        sentences << QStringLiteral("this Qt message did not come: %1").arg(pattern.pattern());
    }
    return sentences;
}

void QtMessages::receive(QtMsgType type, QMessageLogContext const& context, QString const& message) {
    // The offscreen platform prints this for every window and popup that is shown.
    if (message.startsWith(QLatin1String("This plugin does not support "))) {
        return;
    }
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        std::lock_guard const lock(receiver->mutex_);
        receiver->received_ << message;
    } else {
        receiver->previous_(type, context, message);
    }
}
