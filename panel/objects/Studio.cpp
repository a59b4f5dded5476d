#include <bramble/Values.hpp>
#include <panel/Look.hpp>
#include <panel/objects/ComputingBar.hpp>
#include <panel/objects/Studio.hpp>
#include <QAction>
#include <QLabel>
#include <QStatusBar>

namespace Panel {

namespace {

// In pixels; as wide as the list of objects and half of the editors.
constexpr int previewWidth = 400;

} // namespace

Studio::Studio(QMainWindow& window)
    : previewMaker_(new PreviewMaker(this)),
      workshop_(new Workshop(this)),
      dock_(new QDockWidget(tr("Preview"), &window)),
      preview_(new Preview),
      bar_(new ComputingBar(*workshop_)) {
    dock_->setObjectName(QStringLiteral("preview"));
    dock_->setWidget(preview_);
    dock_->hide();
    window.addDockWidget(trailingDockArea(window.layoutDirection()), dock_);
    window.resizeDocks({dock_}, {previewWidth}, Qt::Horizontal);
    window.statusBar()->addPermanentWidget(bar_);

    connect(dock_->toggleViewAction(), &QAction::triggered, this, [this](bool shown) { isWanted_ = shown; });
    connect(preview_, &Preview::pictureSizeChanged, previewMaker_,
            [this] { previewMaker_->setSize(preview_->pictureSize()); });
    connect(previewMaker_, &PreviewMaker::pictureChanged, this, &Studio::showPicture);
    connect(workshop_, &Workshop::told, this, &Studio::told);
    connect(workshop_, &Workshop::computed, this, &Studio::keepComputed);
    showPicture();
}

Studio::~Studio() {
    // It refers to the workshop.
    delete bar_;
}

QAction* Studio::previewAction() const {
    return dock_->toggleViewAction();
}

void Studio::showNetwork(Network* network, PoolPtr const& pool) {
    pool_ = pool;
    workshop_->setNetwork(network);
    previewMaker_->setNetwork(nullptr);
    previewMaker_->setPool(pool);
    previewMaker_->setNetwork(network);
    dock_->setVisible(isWanted_ && previewMaker_->computes());
}

void Studio::choosePool(PoolPtr const& pool) {
    pool_ = pool;
    previewMaker_->setPool(pool);
}

bool Studio::fire(Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter, PoolPtr const& pool) {
    auto const* const render = dynamic_cast<RenderObject const*>(object.get());
    if (!render || !render->isStart(parameter))
        return false;
    changesAtStart_ = previewMaker_->changes();
    workshop_->start(pool);
    return true;
}

void Studio::followLinks(Kolt::ParameterPtr const& parameter, QWidget* editor) {
    if (!editor || !parameter || parameter->declaredType() != Tessera::Typename(typeid(Kolt::VObjectStatus)))
        return;
    auto* const itself = qobject_cast<QLabel*>(editor);
    auto* const label = itself ? itself : editor->findChild<QLabel*>();
    if (label)
        connect(label, &QLabel::linkActivated, this, &Studio::followLink, Qt::UniqueConnection);
}

void Studio::followLink(QString const& link) {
    if (link != QLatin1String(PictureJob::CancelLink))
        return;
    if (workshop_->isComputing())
        workshop_->cancel();
    else
        workshop_->tellIdle(pool_);
}

void Studio::showPicture() {
    preview_->showPicture(previewMaker_->image(), previewMaker_->computes()
                                                      ? previewMaker_->problem()
                                                      : tr("Nothing in this network computes a picture."));
}

void Studio::keepComputed(QImage const& image, PoolPtr const& pool) {
    if (pool == pool_ && previewMaker_->changes() == changesAtStart_ && previewMaker_->isAtRest())
        previewMaker_->showFinished(image);
}

} // namespace Panel
