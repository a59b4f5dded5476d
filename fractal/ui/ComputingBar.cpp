#include <fractal/ui/ComputingBar.hpp>

#include <network/PlainText.hpp>
#include <QHBoxLayout>
#include <QShortcut>

namespace Fractal {

ComputingBar::ComputingBar(RenderQueue& renderQueue, QWidget* parent)
    : QWidget(parent), renderQueue_(renderQueue), progress_(new QProgressBar), cancel_(new QPushButton(tr("&Cancel"))) {
    setObjectName(QStringLiteral("computing"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 8, 0);
    progress_->setRange(0, 100);
    progress_->setFixedWidth(160);
    progress_->setAccessibleName(tr("Computed"));
    layout->addWidget(progress_);
    cancel_->setObjectName(QStringLiteral("cancel"));
    cancel_->setToolTip(tr("Ends the computing (Esc)"));
    layout->addWidget(cancel_);
    // The shortcut belongs to the bar, so Escape is taken only while something is being computed.
    auto* const escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, &renderQueue_, &RenderQueue::cancel);
    connect(cancel_, &QPushButton::clicked, &renderQueue_, &RenderQueue::cancel);
    connect(&renderQueue_, &RenderQueue::progressed, this, &ComputingBar::refresh);
    refresh();
}

ComputingBar::~ComputingBar() = default;

void ComputingBar::refresh() {
    progress_->setValue(renderQueue_.percent());
    progress_->setToolTip(Talo::plainToolTip(renderQueue_.description()));
    setVisible(renderQueue_.isComputing());
}

} // namespace Fractal
