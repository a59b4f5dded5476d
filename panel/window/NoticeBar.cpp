#include <panel/window/NoticeBar.hpp>

#include <QAccessible>
#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>

namespace Panel {

NoticeBar::NoticeBar(QWidget* parent) : QFrame(parent), text_(new QLabel), offer_(new QPushButton(tr("OK"))) {
    setObjectName(QStringLiteral("notice"));
    setFrameShape(StyledPanel);
    // The colours of tool tips stand out and suit every palette.
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setForegroundRole(QPalette::ToolTipText);
    offer_->setObjectName(QStringLiteral("offer"));
    auto* const close = new QToolButton;
    close->setAutoRaise(true);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip(tr("Close this notice"));
    close->setAccessibleName(close->toolTip());

    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(text_, 1);
    layout->addWidget(offer_);
    layout->addWidget(close);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    connect(offer_, &QPushButton::clicked, this, [this] {
        hide();
        // A copy, as the action may show another notice.
        if (auto const action = action_)
            action();
    });
    hide();
}

NoticeBar::~NoticeBar() = default;

void NoticeBar::showNotice(QString const& text, QString const& offer, std::function<void()> action) {
    text_->setText(text);
    setAccessibleName(text);
    offer_->setText(offer);
    offer_->setVisible(!offer.isEmpty());
    action_ = std::move(action);
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace Panel
