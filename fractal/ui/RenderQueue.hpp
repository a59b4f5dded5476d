#pragma once

#include <deque>
#include <fractal/objects/PictureJob.hpp>

namespace Fractal {

/// Computes full-size pictures of a network, with the quality that a pool defines, and writes them to files, one after
/// another. While it computes, its thread writes the status of the network's render objects. User-interface thread,
/// which waits for the running picture only when the network is replaced or removed.
class RenderQueue : public QObject {
    Q_OBJECT

public:
    explicit RenderQueue(QObject* parent = nullptr);
    ~RenderQueue() override;

    /// Sets the network, ends all computing for the previous one and waits for it. Null removes the network, which must
    /// happen before it is destroyed.
    void setNetwork(Talo::Network* network);

    /// Computes the picture of a pool to view it. Replaces an earlier picture that is only to be viewed; pictures for
    /// files continue.
    void start(Kolt::PoolPtr const& pool);
    /// Computes the picture of a pool and writes it to a file.
    void write(ExporterObject::Format format, QString const& file, Kolt::PoolPtr const& pool);
    /// Cancels all pictures.
    void cancel();
    /// Sets the status to "nothing is being computed", for a network that was saved during a computation.
    void reportIdle(Kolt::PoolPtr const& pool);

    bool isComputing() const { return !jobs_.empty(); }
    /// The progress of the current picture in percent; 0 if there is none.
    int percent() const;
    /// Names what is being computed, in a text for the user; empty if nothing is.
    QString description() const;
    /// Says what is still to be written to a file, in a text for the user; empty if nothing is.
    QString unwritten() const;

signals:
    /// The computing started, ended or made progress.
    void progressed();
    /// A picture from start() is computed.
    void computed(QImage const& image, Kolt::PoolPtr const& pool);
    /// Reports to the user what was done.
    void reported(QString const& text);

private:
    void post(std::shared_ptr<PictureJob> const& job);
    void take();
    void finish(PictureJob const& job);

    std::unique_ptr<ComputingNetwork> network_;
    // In the order of computing; the first one is running.
    std::deque<std::shared_ptr<PictureJob>> jobs_;
    // Null without a network. Destroyed first, as its thread works on the jobs.
    std::unique_ptr<Worker> worker_;
};

} // namespace Fractal
