#pragma once

#include <functional>
#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace Panel {

/// A line at the top of the window that says something and may offer to do something about it; a cross closes it.
/// Hidden at first. User-interface thread.
class NoticeBar : public QFrame {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);
    ~NoticeBar() override;

    /// Shows a plain text in place of what is shown. A click on the button hides the bar, then calls `action`; without
    /// an `offer`, the button's caption, there is none.
    void showNotice(QString const& text, QString const& offer = {}, std::function<void()> action = {});

private:
    QLabel* const text_;
    QPushButton* const offer_;
    std::function<void()> action_;
};

} // namespace Panel
