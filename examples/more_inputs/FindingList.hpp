#pragma once

#include <QElapsedTimer>
#include <QListView>

namespace MoreInputs {

/// The list of a drop-down box in which typing finds an entry: first one that begins with the typed text, else one that
/// contains it, whatever the case of the letters. After a pause another text begins; Backspace takes a letter back.
/// All entries are as high as the first, so a list of ten thousand opens at once. User-interface thread.
class FindingList : public QListView {
    Q_OBJECT

public:
    /// How long a text goes on after a key, in milliseconds.
    static constexpr int Pause = 1500;

    explicit FindingList(QWidget* parent = nullptr);
    ~FindingList() override;

    void keyboardSearch(QString const& typed) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void find(QString const& text);

    QString text_;
    QElapsedTimer sinceKey_;
};

} // namespace MoreInputs
