#pragma once

#include <QAction>
#include <QLineEdit>

namespace Panel {

/// The field for the words of the filter. Escape clears it, Return asks for the first parameter that was found.
/// User-interface thread.
class FilterField : public QLineEdit {
    Q_OBJECT

public:
    explicit FilterField(QWidget* parent = nullptr);
    ~FilterField() override;

    /// Gives the field the focus.
    QAction* findAction() const { return findAction_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QAction* const findAction_;
};

} // namespace Panel
