#pragma once

#include <QString>
#include <QTreeWidget>

namespace Panel {

/// What was printed, warned of and done while the panel ran, each with its time, the latest last. What was printed is
/// hidden at first: it is meant for those who write plug-ins. User-interface thread.
class MessageList : public QTreeWidget {
    Q_OBJECT

public:
    /// Where a message comes from.
    enum class Source {
        Panel,  ///< something the panel did
        Output, ///< a line on standard output
        Warning,
        Error
    };

    /// How many messages are kept; the oldest go first.
    static constexpr int Capacity = 5000;

    explicit MessageList(QWidget* parent = nullptr);
    ~MessageList() override;

    /// Adds a message. If the end of the list is visible, the list scrolls to its new end.
    void add(Source source, QString const& text);
    /// The texts, the latest last.
    QStringList texts() const;
    /// The texts from one source, the latest last.
    QStringList texts(Source source) const;
    /// How many of the messages were printed.
    int outputCount() const { return outputCount_; }
    /// Shows or hides what was printed, and what will be.
    void setOutputShown(bool shown);

signals:
    /// There is another number of printed messages.
    void outputCounted(int count);

protected:
    void changeEvent(QEvent* event) override;

private:
    void setColumnWidths();
    /// Colours and font of a message, which follow those of the list.
    void setItemLook(QTreeWidgetItem& item) const;
    static bool isOutput(QTreeWidgetItem const& item);
    void countOutput(int count);
    void removeOldest();
    void scrollToNewEnd();

    int outputCount_ = 0;
    bool outputShown_ = false;
    bool scrollWaits_ = false;
};

} // namespace Panel
