#include <panel/window/MessageDock.hpp>

#include <QVBoxLayout>

namespace Panel {

namespace {

// In lines, the title and the header among them.
constexpr int usualHeight = 6;

} // namespace

MessageDock::MessageDock(QMainWindow& window)
    : QDockWidget(MessageList::tr("Messages"), &window), messages_(new MessageList), outputButton_(new QToolButton) {
    setObjectName(QStringLiteral("messages"));
    setWidget(makePage());
    window.addDockWidget(Qt::BottomDockWidgetArea, this);
    window.resizeDocks({this}, {usualHeight * fontMetrics().height()}, Qt::Vertical);
    connect(&warnings_, &WarningListener::warned, messages_,
            [this](QString const& text) { messages_->add(MessageList::Source::Warning, text); });
}

MessageDock::~MessageDock() = default;

QWidget* MessageDock::makePage() {
    outputButton_->setObjectName(QStringLiteral("outputCount"));
    outputButton_->setCheckable(true);
    outputButton_->setToolTip(tr("Shows or hides what the panel and its plug-ins print."));
    showOutputCount(0);
    connect(outputButton_, &QToolButton::toggled, messages_, &MessageList::setOutputShown);
    connect(messages_, &MessageList::outputCounted, this, &MessageDock::showOutputCount);

    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(messages_, 1);
    layout->addWidget(outputButton_);
    return page;
}

void MessageDock::showOutputCount(int count) {
    outputButton_->setText(count == 1 ? tr("1 line of output") : tr("%n lines of output", nullptr, count));
    outputButton_->setVisible(count > 0);
}

void MessageDock::tapStandardOutput() {
    if (outputTap_)
        return;
    outputTap_ = std::make_unique<StandardOutputTap>();
    connect(outputTap_.get(), &StandardOutputTap::linePrinted, messages_,
            [this](QString const& line) { messages_->add(MessageList::Source::Output, line); });
    connect(outputTap_.get(), &StandardOutputTap::linesMissed, messages_, [this](int count) {
        messages_->add(MessageList::Source::Panel,
                       count == 1
                           ? tr("1 line of output was left out, because it came too fast.")
                           : tr("%n lines of output were left out, because they came too fast.", nullptr, count));
    });
}

} // namespace Panel
