#pragma once

#include <fractal/ui/Preview.hpp>
#include <fractal/ui/PreviewRenderer.hpp>
#include <fractal/ui/RenderQueue.hpp>
#include <QDockWidget>
#include <QPointer>

namespace Fractal {

/// Provides a window's widgets for networks that compute a picture: a dock with the preview, and a progress bar for the
/// status bar. The window owns the widgets. User-interface thread.
class FractalController : public QObject {
    Q_OBJECT

public:
    explicit FractalController(QObject* parent = nullptr);
    ~FractalController() override;

    /// Shows a network with the values of a pool, in place of the previous network. Null removes the network and ends
    /// all computing; call it before the network is destroyed. The preview is shown for a network that computes a
    /// picture, unless the user closed it.
    void showNetwork(Talo::Network* network, Kolt::PoolPtr const& pool);
    void choosePool(Kolt::PoolPtr const& pool);

    /// If the parameter is the start action of a render object, starts to compute the picture of the pool. Returns
    /// whether it is.
    bool fire(Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool);
    /// Makes the links in the editor of a status parameter work. Does nothing for a parameter of another type, or if
    /// the editor has no label.
    void followLinks(Kolt::ParameterPtr const& parameter, QWidget* editor);

    /// The dock with the preview, hidden until a network that computes a picture is shown. The window takes ownership
    /// of it; the dock must outlive the controller.
    QDockWidget* dock() const { return dock_; }
    /// Shows the progress of the computing. The controller deletes it, even if it has a parent.
    QWidget* progressWidget() const { return bar_; }
    /// The action that shows and hides the preview.
    QAction* previewAction() const;
    PreviewRenderer const& previewRenderer() const { return *previewRenderer_; }
    RenderQueue const& renderQueue() const { return *renderQueue_; }
    /// Says which picture is still being written to a file; empty if there is none.
    QString unwrittenPicture() const { return renderQueue_->unwritten(); }
    /// Whether the preview is up to date and stays as it is until something changes.
    bool isAtRest() const { return previewRenderer_->isAtRest(); }

signals:
    /// Reports to the user what was done.
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
    // Whether to show the preview of a network that has one; false after the user closed it.
    bool isWanted_ = true;
    Kolt::PoolPtr pool_;
    // The preview's number of changes at the last start: a picture that is outdated by then must not replace the
    // preview.
    unsigned long changesAtStart_ = 0;
};

} // namespace Fractal
