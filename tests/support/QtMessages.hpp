#pragma once

#include <mutex>
#include <QRegularExpression>
#include <QStringList>
#include <vector>

/// Collects Qt's warnings and worse from its construction to its destruction; information and debug messages go on to
/// the handler that was there before. One at a time; messages may come from any thread.
class QtMessages {
public:
    QtMessages();
    ~QtMessages();
    QtMessages(QtMessages const&) = delete;
    QtMessages& operator=(QtMessages const&) = delete;

    /// One message that contains a match of this pattern is wanted.
    void expect(QRegularExpression const& pattern);

    /// Messages that contain a match of this pattern may come, any number of them.
    void allow(QRegularExpression const& pattern);

    /// One sentence for each message that nobody expected and each expected one that has not come.
    QStringList complaints() const;

private:
    static void receive(QtMsgType type, QMessageLogContext const& context, QString const& message);

    mutable std::mutex mutex_;
    QStringList received_;
    std::vector<QRegularExpression> expected_;
    std::vector<QRegularExpression> allowed_;
    QtMessageHandler previous_;
};
