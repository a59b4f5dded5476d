#pragma once

#include <parameters/rows/FileButtonText.hpp>
#include <QAccessibleWidget>
#include <QPointer>

namespace Talo {

/// A file button as assistive programs see it: a button whose value is the chosen name (FileButtonText).
/// User-interface thread.
class AccessibleFileButton : public QAccessibleWidget {
public:
    /// From now on the button is seen so. Owned by Qt, as long as the button lives. REQUIRES: `text` is not null.
    static void attach(QPushButton& button, FileButtonText* text);

    /// The chosen name as the value; the rest is that of a button.
    QString text(QAccessible::Text kind) const override;
    /// A press.
    QStringList actionNames() const override;
    /// Presses the button.
    void doAction(QString const& name) override;

private:
    AccessibleFileButton(QPushButton& button, FileButtonText* text);

    QPushButton& button_;
    QPointer<FileButtonText> text_;
};

} // namespace Talo
