#pragma once

#include <mutex>
#include <QRegularExpression>
#include <QStringList>
#include <vector>

/// Collects Qt's warnings and errors from construction to destruction; information and debug messages go to the
/// previous handler. One instance at a time; messages may come from any thread.
class QtMessages {
public:
    QtMessages();
    ~QtMessages();
    QtMessages(QtMessages const&) = delete;
    QtMessages& operator=(QtMessages const&) = delete;

    /// Requires one message that contains a match of the pattern.
    void expect(QRegularExpression const& pattern);

    /// Permits any number of messages that contain a match of the pattern.
    void allow(QRegularExpression const& pattern);

    /// One sentence for each unexpected message, and for each expected message that is missing.
    QStringList complaints() const;

private:
    static void receive(QtMsgType type, QMessageLogContext const& context, QString const& message);

    mutable std::mutex mutex_;
    QStringList received_;
    std::vector<QRegularExpression> expected_;
    std::vector<QRegularExpression> allowed_;
    QtMessageHandler previous_;
};
