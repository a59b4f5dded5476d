#include <fractal/ui/FractalController.hpp>

#include <bramble/ObjectStatus.hpp>
#include <fractal/ui/ComputingBar.hpp>
#include <QAction>
#include <QLabel>

namespace Fractal {

FractalController::FractalController(QObject* parent)
    : QObject(parent),
      previewRenderer_(new PreviewRenderer(this)),
      renderQueue_(new RenderQueue(this)),
      dock_(new QDockWidget(tr("Preview"))),
      preview_(new Preview),
      bar_(new ComputingBar(*renderQueue_)) {
    dock_->setObjectName(QStringLiteral("preview"));
    dock_->setWidget(preview_);
    dock_->hide();

    connect(dock_->toggleViewAction(), &QAction::triggered, this, [this](bool shown) { isWanted_ = shown; });
    connect(preview_, &Preview::pictureSizeChanged, previewRenderer_,
            [this] { previewRenderer_->setSize(preview_->pictureSize()); });
    connect(previewRenderer_, &PreviewRenderer::pictureChanged, this, &FractalController::showPicture);
    connect(renderQueue_, &RenderQueue::reported, this, &FractalController::reported);
    connect(renderQueue_, &RenderQueue::computed, this, &FractalController::keepComputed);
    showPicture();
}

FractalController::~FractalController() {
    // The bar uses the render queue, which is deleted after this.
    delete bar_;
}

QAction* FractalController::previewAction() const {
    return dock_->toggleViewAction();
}

void FractalController::showNetwork(Talo::Network* network, Kolt::PoolPtr const& pool) {
    pool_ = pool;
    renderQueue_->setNetwork(network);
    previewRenderer_->setNetwork(nullptr);
    previewRenderer_->setPool(pool);
    previewRenderer_->setNetwork(network);
    dock_->setVisible(isWanted_ && previewRenderer_->computes());
}

void FractalController::choosePool(Kolt::PoolPtr const& pool) {
    pool_ = pool;
    previewRenderer_->setPool(pool);
}

bool FractalController::fire(Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter,
                             Kolt::PoolPtr const& pool) {
    auto const* const render = dynamic_cast<RenderObject const*>(object.get());
    if (!render || !render->isStart(parameter))
        return false;
    changesAtStart_ = previewRenderer_->changes();
    renderQueue_->start(pool);
    return true;
}

void FractalController::followLinks(Kolt::ParameterPtr const& parameter, QWidget* editor) {
    if (!editor || !parameter || parameter->declaredType() != Tessera::Typename(typeid(Kolt::VObjectStatus)))
        return;
    auto* const itself = qobject_cast<QLabel*>(editor);
    auto* const label = itself ? itself : editor->findChild<QLabel*>();
    if (label)
        connect(label, &QLabel::linkActivated, this, &FractalController::followLink, Qt::UniqueConnection);
}

void FractalController::followLink(QString const& link) {
    if (link != QLatin1String(PictureJob::CancelLink))
        return;
    if (renderQueue_->isComputing())
        renderQueue_->cancel();
    else
        renderQueue_->reportIdle(pool_);
}

void FractalController::showPicture() {
    preview_->showPicture(previewRenderer_->image(), previewRenderer_->computes()
                                                         ? previewRenderer_->problem()
                                                         : tr("Nothing in this network computes a picture."));
}

void FractalController::keepComputed(QImage const& image, Kolt::PoolPtr const& pool) {
    if (pool == pool_ && previewRenderer_->changes() == changesAtStart_ && previewRenderer_->isAtRest())
        previewRenderer_->showFinished(image);
}

} // namespace Fractal
