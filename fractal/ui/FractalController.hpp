#pragma once

#include <fractal/ui/Preview.hpp>
#include <fractal/ui/PreviewRenderer.hpp>
#include <fractal/ui/RenderQueue.hpp>
#include <QDockWidget>
#include <QPointer>

namespace Fractal {

/// What a window has for networks that compute a picture: a dock with the preview, and in the status bar how far the
/// computing is. The widgets belong to the window. User-interface thread.
class FractalController : public QObject {
    Q_OBJECT

public:
    explicit FractalController(QObject* parent = nullptr);
    ~FractalController() override;

    /// Shows a network and the values of a pool, in place of another one; null takes the network away, which must be
    /// done before it goes, and ends all computing. The preview is shown for a network that computes a picture, unless
    /// the user closed it.
    void showNetwork(Talo::Network* network, Kolt::PoolPtr const& pool);
    void choosePool(Kolt::PoolPtr const& pool);

    /// Starts to compute the picture of a pool if that is what the action of an object's parameter is for; says whether
    /// it is.
    bool fire(Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool);
    /// Lets the links in a status be followed. `editor` is the editor of the parameter; of any other parameter, and
    /// where it has no label, nothing happens.
    void followLinks(Kolt::ParameterPtr const& parameter, QWidget* editor);

    /// The dock with the preview, hidden until a network that computes a picture is shown. A window takes it over; it
    /// must outlive the controller.
    QDockWidget* dock() const { return dock_; }
    /// Shows how far the computing is. The controller deletes it, whatever its parent is.
    QWidget* progressWidget() const { return bar_; }
    /// Shows and hides the preview.
    QAction* previewAction() const;
    PreviewRenderer const& previewRenderer() const { return *previewRenderer_; }
    RenderQueue const& renderQueue() const { return *renderQueue_; }
    /// Says which picture is still being written to a file; empty where none is.
    QString unwrittenPicture() const { return renderQueue_->unwritten(); }
    /// Whether the preview stays as it is unless something changes.
    bool isAtRest() const { return previewRenderer_->isAtRest(); }

signals:
    /// Something was done that the user should read of.
    void reported(QString const& text);

private:
    void followLink(QString const& link);
    void showPicture();
    void keepComputed(QImage const& image, Kolt::PoolPtr const& pool);

    PreviewRenderer* const previewRenderer_;
    RenderQueue* const renderQueue_;
    QDockWidget* const dock_;
    Preview* const preview_;
    QPointer<QWidget> const bar_;
    // Whether the user wants to see the preview where there is one.
    bool isWanted_ = true;
    Kolt::PoolPtr pool_;
    // The preview's changes at the last start, so that an outdated picture does not take its place.
    unsigned long changesAtStart_ = 0;
};

} // namespace Fractal
