#include <panel/gallery/Gallery.hpp>

#include <algorithm>
#include <QVBoxLayout>

namespace Panel {

Gallery::Gallery(QWidget* parent) : QMainWindow(parent), states_(new QTabWidget), messageDock_(new MessageDock(*this)) {
    setWindowTitle(tr("Gallery – Talo panel"));
    states_->setDocumentMode(true);
    states_->setAccessibleName(tr("States"));
    setCentralWidget(states_);

    messageDock_->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    for (auto const state : galleryStates()) {
        auto* const place = new QWidget;
        auto* const layout = new QVBoxLayout(place);
        layout->setContentsMargins(0, 0, 0, 0);
        states_->addTab(place, galleryStateTitle(state));
    }
    connect(states_, &QTabWidget::currentChanged, this, &Gallery::page);
    page(0);
    resize(1180, 860);
}

Gallery::~Gallery() {
    // While the messages still stand.
    delete takeCentralWidget();
}

GalleryPage* Gallery::showState(GalleryState state) {
    auto const& states = galleryStates();
    auto const index = static_cast<int>(std::find(states.begin(), states.end(), state) - states.begin());
    states_->setCurrentIndex(index);
    return page(index);
}

GalleryPage* Gallery::page(int index) {
    auto* const place = states_->widget(index);
    if (auto* const page = place->findChild<GalleryPage*>())
        return page;
    auto* const page = new GalleryPage(galleryStates().at(static_cast<std::size_t>(index)), place);
    connect(page, &GalleryPage::actionFired, this, [this](QString const& name) {
        messages()->add(MessageList::Source::Panel, tr("Action %1 was fired.").arg(name));
    });
    place->layout()->addWidget(page);
    return page;
}

} // namespace Panel
