#pragma once

#include <panel/objects/Workshop.hpp>
#include <QProgressBar>
#include <QPushButton>

namespace Panel {

/// Shows how far a workshop is and lets it be cancelled, by the button or the key Escape. Hidden while nothing is being
/// computed. User-interface thread.
class ComputingBar : public QWidget {
    Q_OBJECT

public:
    /// The workshop must outlive the bar.
    explicit ComputingBar(Workshop& workshop, QWidget* parent = nullptr);
    ~ComputingBar() override;

private:
    void refresh();

    Workshop& workshop_;
    QProgressBar* const progress_;
    QPushButton* const cancel_;
};

} // namespace Panel
