#pragma once

#include <fractal/engine/Worker.hpp>
#include <fractal/objects/ComputingNetwork.hpp>
#include <fractal/objects/ParameterWatch.hpp>
#include <QImage>
#include <QTimer>

namespace Fractal {

/// Makes the small picture of a network in a pool and keeps it up to date. Each change gives a coarse picture at once;
/// as soon as changes rest and no mouse button is held, the fine one follows. A fine picture that is outdated is
/// cancelled; a coarse one, which takes little, is finished, so that the picture follows a handle however fast it
/// moves. User-interface thread, which never waits for a picture.
class PreviewRenderer : public QObject {
    Q_OBJECT

public:
    explicit PreviewRenderer(QObject* parent = nullptr);
    ~PreviewRenderer() override;

    /// The network, which must be taken away, by null, before it goes.
    void setNetwork(Talo::Network const* network);
    void setPool(Kolt::PoolPtr const& pool);
    /// The size of the fine picture, in points of the device; without any, as where nobody looks, nothing is made.
    void setSize(QSize const& size);

    /// Whether there is something to compute.
    bool computes() const { return network_ && network_->computes(); }
    /// The picture; null as long as there is none. A coarse one has the same size.
    QImage const& image() const { return image_; }
    bool isFine() const { return isFine_; }
    /// What the user should know about the picture; usually empty.
    QString const& problem() const { return problem_; }
    /// Whether the fine picture is being made.
    bool isRefining() const;
    /// Whether the picture stays as it is unless something changes.
    bool isAtRest() const;

    /// How often something changed that the picture depends on.
    unsigned long changes() const { return changes_; }
    /// Shows a picture that was computed elsewhere, until the next change.
    void showFinished(QImage const& image);

signals:
    /// There is another picture, or none any more.
    void pictureChanged();

private:
    class Drawing;

    void change();
    void rest();
    void post(bool fine);
    void take();
    /// Ends whatever is being computed and forgets the picture.
    void clear();

    std::unique_ptr<ComputingNetwork> network_;
    std::unique_ptr<ParameterWatch> watch_;
    Kolt::PoolPtr pool_;
    QSize size_;
    QTimer restTimer_;
    unsigned long changes_ = 0;
    // The number of changes that the drawing posted last, and the shown one, know of.
    unsigned long posted_ = 0;
    // The drawing that is being made; owned by the worker.
    std::shared_ptr<Drawing> drawing_;
    QImage image_;
    bool isFine_ = false;
    QString problem_;
    // Destroyed first, as its thread works on the drawings.
    Worker worker_;
};

} // namespace Fractal
