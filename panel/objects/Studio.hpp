#pragma once

#include <panel/objects/Preview.hpp>
#include <panel/objects/PreviewMaker.hpp>
#include <panel/objects/Workshop.hpp>
#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>

namespace Panel {

/// What a window has for networks that compute a picture: a dock with the preview, and in the status bar how far the
/// computing is. The widgets belong to the window. User-interface thread.
class Studio : public QObject {
    Q_OBJECT

public:
    /// Adds the widgets to the window, which must outlive the studio.
    explicit Studio(QMainWindow& window);
    ~Studio() override;

    /// Shows a network and the values of a pool, in place of another one; null takes the network away, which must be
    /// done before it goes, and ends all computing. The preview is shown for a network that computes a picture, unless
    /// the user closed it.
    void showNetwork(Network* network, PoolPtr const& pool);
    void choosePool(PoolPtr const& pool);

    /// Starts to compute the picture of a pool if that is what the action of an object's parameter is for; says whether
    /// it is.
    bool fire(Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter, PoolPtr const& pool);
    /// Lets the links in a status be followed. `editor` is the editor of the parameter; of any other parameter, and
    /// where it has no label, nothing happens.
    void followLinks(Kolt::ParameterPtr const& parameter, QWidget* editor);

    /// Shows and hides the preview.
    QAction* previewAction() const;
    PreviewMaker const& previewMaker() const { return *previewMaker_; }
    Workshop const& workshop() const { return *workshop_; }
    /// Whether the preview stays as it is unless something changes.
    bool isAtRest() const { return previewMaker_->isAtRest(); }

signals:
    /// Something was done that the user should read of.
    void told(QString const& text);

private:
    void followLink(QString const& link);
    void showPicture();
    void keepComputed(QImage const& image, PoolPtr const& pool);

    PreviewMaker* const previewMaker_;
    Workshop* const workshop_;
    QDockWidget* const dock_;
    Preview* const preview_;
    QPointer<QWidget> const bar_;
    // Whether the user wants to see the preview where there is one.
    bool isWanted_ = true;
    PoolPtr pool_;
    // The preview's changes at the last start, so that an outdated picture does not take its place.
    unsigned long changesAtStart_ = 0;
};

} // namespace Panel
