#pragma once

#include <deque>
#include <fractal/objects/PictureJob.hpp>

namespace Fractal {

/// Computes whole pictures of a network, in the quality that a pool asks for, and writes them to files, one after the
/// other. While it computes, its thread writes the status of the network's render objects. User-interface thread, which
/// never waits for a picture.
class RenderQueue : public QObject {
    Q_OBJECT

public:
    explicit RenderQueue(QObject* parent = nullptr);
    ~RenderQueue() override;

    /// The network, which must be taken away, by null, before it goes: whatever is being computed ends then.
    void setNetwork(Talo::Network* network);

    /// Computes the picture of a pool; one that is being computed to be looked at, and not to be written, is given up.
    void start(Kolt::PoolPtr const& pool);
    /// Computes the picture of a pool and writes it.
    void write(ExporterObject::Format format, QString const& file, Kolt::PoolPtr const& pool);
    /// Gives up everything that is being computed.
    void cancel();
    /// Says in the status that nothing is being computed, for a network that was saved while something was.
    void reportIdle(Kolt::PoolPtr const& pool);

    bool isComputing() const { return !jobs_.empty(); }
    /// How much of the picture is computed, in percent; 0 while there is none.
    int percent() const;
    /// What is being computed, for people; empty while nothing is.
    QString description() const;
    /// What is still to be written to a file, for people; empty where nothing is.
    QString unwritten() const;

signals:
    /// It began or ended to compute, or made progress.
    void progressed();
    /// A picture that was started, and not to be written, is computed.
    void computed(QImage const& image, Kolt::PoolPtr const& pool);
    /// Something was done that the user should read of.
    void reported(QString const& text);

private:
    void post(std::shared_ptr<PictureJob> const& job);
    void take();
    void finish(PictureJob const& job);

    std::unique_ptr<ComputingNetwork> network_;
    // In the order in which they are done; the first one is being done.
    std::deque<std::shared_ptr<PictureJob>> jobs_;
    // Null without a network. Destroyed first, as its thread works on the jobs.
    std::unique_ptr<Worker> worker_;
};

} // namespace Fractal
