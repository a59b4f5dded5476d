#pragma once

#include <QObject>
#include <QWidget>

namespace Panel {

/// Takes files that are dropped onto a window where no control of it takes them. User-interface thread.
class FileDrop : public QObject {
    Q_OBJECT

public:
    /// The window owns it.
    explicit FileDrop(QWidget& window);
    ~FileDrop() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// One file was dropped. Emitted after the program from which it was dragged is done with it.
    void dropped(QString const& file);
    /// What was dropped is no single file, for this reason: a sentence.
    void refused(QString const& reason);

private:
    void take(QList<QUrl> const& places);
};

} // namespace Panel
