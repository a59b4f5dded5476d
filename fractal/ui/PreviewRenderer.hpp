#pragma once

#include <fractal/engine/Worker.hpp>
#include <fractal/objects/ComputingNetwork.hpp>
#include <fractal/objects/ParameterWatch.hpp>
#include <QImage>
#include <QTimer>

namespace Fractal {

/// Computes the preview of a network in a pool and keeps it up to date. Each change starts a coarse picture at once;
/// the fine one follows when changes pause and no mouse button is held, and the first one at once. A further change
/// cancels a fine picture but lets a coarse one finish, because that is quick; so the preview follows a handle however
/// fast it moves.
/// User-interface thread, which never waits for a picture.
class PreviewRenderer : public QObject {
    Q_OBJECT

public:
    explicit PreviewRenderer(QObject* parent = nullptr);
    ~PreviewRenderer() override;

    /// Sets the network; null removes it, which must happen before the network is destroyed.
    void setNetwork(Talo::Network const* network);
    void setPool(Kolt::PoolPtr const& pool);
    /// The size of the picture in device pixels. While it is empty, as for a hidden preview, nothing is computed.
    void setSize(QSize const& size);

    /// Whether the network computes a picture.
    bool computes() const { return network_ && network_->computes(); }
    /// The picture; null while there is none. A coarse one has the same size as a fine one.
    QImage const& image() const { return image_; }
    bool isFine() const { return isFine_; }
    /// A message to the user about the picture; usually empty.
    QString const& problem() const { return problem_; }
    /// Whether a picture is being computed, coarse or fine.
    bool isComputing() const { return drawing_ != nullptr; }
    /// Whether the fine picture is being computed.
    bool isRefining() const;
    /// Whether the picture is up to date and stays as it is until something changes.
    bool isAtRest() const;

    /// The number of changes so far of what the picture depends on.
    unsigned long changes() const { return changes_; }
    /// Shows a picture that was computed elsewhere, until the next change.
    void showFinished(QImage const& image);

signals:
    /// There is another picture, or none.
    void pictureChanged();

private:
    class Drawing;

    void change();
    void rest();
    void post(bool fine);
    void take();
    /// Cancels the computing and drops the picture.
    void clear();

    std::unique_ptr<ComputingNetwork> network_;
    std::unique_ptr<ParameterWatch> watch_;
    Kolt::PoolPtr pool_;
    QSize size_;
    QTimer restTimer_;
    unsigned long changes_ = 0;
    // The value of changes_ when the last drawing was posted.
    unsigned long posted_ = 0;
    // The drawing that is being computed and whose result is wanted; shared with the worker.
    std::shared_ptr<Drawing> drawing_;
    QImage image_;
    bool isFine_ = false;
    // Whether one has been fine since the computing began.
    bool wasFine_ = false;
    QString problem_;
    // Destroyed first, as its thread works on the drawings.
    Worker worker_;
};

} // namespace Fractal
