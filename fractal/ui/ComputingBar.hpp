#pragma once

#include <fractal/ui/RenderQueue.hpp>
#include <QProgressBar>
#include <QPushButton>

namespace Fractal {

/// Shows the progress of a render queue, and cancels it by a button or the Escape key. Hidden while nothing is being
/// computed. User-interface thread.
class ComputingBar : public QWidget {
    Q_OBJECT

public:
    /// The render queue must outlive the bar.
    explicit ComputingBar(RenderQueue& renderQueue, QWidget* parent = nullptr);
    ~ComputingBar() override;

private:
    void refresh();

    RenderQueue& renderQueue_;
    QProgressBar* const progress_;
    QPushButton* const cancel_;
};

} // namespace Fractal
