#include <panel/window/MessageDock.hpp>

namespace Panel {

namespace {

// In pixels: a few lines.
constexpr int usualHeight = 110;

} // namespace

MessageDock::MessageDock(QMainWindow& window)
    : QDockWidget(MessageList::tr("Messages"), &window), messages_(new MessageList) {
    setObjectName(QStringLiteral("messages"));
    setWidget(messages_);
    window.addDockWidget(Qt::BottomDockWidgetArea, this);
    window.resizeDocks({this}, {usualHeight}, Qt::Vertical);
    connect(&warnings_, &WarningListener::warned, messages_,
            [this](QString const& text) { messages_->add(MessageList::Source::Warning, text); });
}

MessageDock::~MessageDock() = default;

void MessageDock::tapStandardOutput() {
    if (outputTap_)
        return;
    outputTap_ = std::make_unique<StandardOutputTap>();
    connect(outputTap_.get(), &StandardOutputTap::linePrinted, messages_,
            [this](QString const& line) { messages_->add(MessageList::Source::Output, line); });
}

} // namespace Panel
