#pragma once

#include <fractal/engine/Picture.hpp>
#include <fractal/engine/Worker.hpp>
#include <fractal/objects/ComputingNetwork.hpp>
#include <fractal/objects/ExporterObject.hpp>
#include <fractal/objects/StatusReport.hpp>

namespace Fractal {

/// One whole picture of a network in a pool, as the parameters were when the job was made, to be looked at or to be
/// written to a file. While it is computed, its thread writes the status of the network's render objects.
class PictureJob : public Worker::Task {
    Q_DECLARE_TR_FUNCTIONS(Fractal::PictureJob)

public:
    /// The link in a status that asks to cancel the job.
    static constexpr auto CancelLink = "cancel";

    /// A picture to be looked at.
    PictureJob(ComputingNetwork const& network, Kolt::PoolPtr const& pool);
    /// A picture to be written.
    PictureJob(ComputingNetwork const& network, Kolt::PoolPtr const& pool, QString file, ExporterObject::Format format);
    ~PictureJob() override;

    void run(Worker& worker) override;
    /// Writes the status of the render objects, plain or rich text. Any thread.
    void writeStatus(QString const& text) const;

    bool isToBeWritten() const { return !file_.isEmpty(); }
    Kolt::PoolPtr const& pool() const { return pool_; }
    /// What the job is about, for people.
    QString const& title() const { return title_; }
    /// How much is computed. Any thread.
    int percent() const { return percent_; }

    // What came of the job, once it is done.

    /// Null where it was cancelled before it was complete, or where there is not enough memory.
    QImage const& image() const { return image_; }
    /// Why the picture could not be computed or written; else empty.
    QString problem() const;
    /// What was computed, in a sentence.
    QString const& summary() const { return summary_; }

    /// Whether another job took its place, so that nothing is to be said of it.
    bool isReplaced = false;

private:
    QString summaryOf(FractalPoints const& points, double seconds) const;

    Kolt::PoolPtr const pool_;
    QString const file_;
    ExporterObject::Format const format_;
    QString const title_;
    Picture::RenderRequest request_;
    std::vector<StatusReport> reports_;
    std::atomic<int> percent_{0};
    QImage image_;
    QString problem_;
    QString summary_;
};

} // namespace Fractal
