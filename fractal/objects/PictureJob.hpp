#pragma once

#include <fractal/engine/Picture.hpp>
#include <fractal/engine/Worker.hpp>
#include <fractal/objects/ComputingNetwork.hpp>
#include <fractal/objects/ExporterObject.hpp>
#include <fractal/objects/StatusReport.hpp>

namespace Fractal {

/// Computes one full-size picture of a network in a pool, with the parameters' values at construction, and writes it to
/// a file if one is given. While it computes, its thread writes the status of the network's render objects.
class PictureJob : public Worker::Task {
    Q_DECLARE_TR_FUNCTIONS(Fractal::PictureJob)

public:
    /// The link in the status text that cancels the job.
    static constexpr auto CancelLink = "cancel";

    /// A picture to view.
    PictureJob(ComputingNetwork const& network, Kolt::PoolPtr const& pool);
    /// A picture to write to a file.
    PictureJob(ComputingNetwork const& network, Kolt::PoolPtr const& pool, QString file, ExporterObject::Format format);
    ~PictureJob() override;

    void run(Worker& worker) override;
    /// Sets the status of the render objects, as plain or rich text. Any thread.
    void writeStatus(QString const& text) const;

    bool isToBeWritten() const { return !file_.isEmpty(); }
    /// The file that is to be written; empty for a picture to view.
    QString const& file() const { return file_; }
    Kolt::PoolPtr const& pool() const { return pool_; }
    /// What is said of the job: that it goes on, was cancelled, or is done.
    enum class Sentence { Computing, NoMemory, GivenUp, Cancelled, Done };
    /// A sentence that names the file, or else the picture and its pool, for the user.
    QString say(Sentence sentence) const;
    /// The progress in percent. Any thread.
    int percent() const { return percent_; }

    // Results, valid when the job is done.

    /// The picture; null if the job was cancelled before it was complete or memory was missing.
    QImage const& image() const { return image_; }
    /// Why the picture could not be computed or written; otherwise empty.
    QString problem() const;
    /// A sentence about what was computed.
    QString const& summary() const { return summary_; }

    /// Whether a newer job replaces this one, so that its outcome is not reported.
    bool isReplaced = false;

private:
    /// How far the job is, as rich text with a link that cancels it.
    QString progressText(int percent) const;
    QString summaryOf(FractalPoints const& points, double seconds) const;

    Kolt::PoolPtr const pool_;
    QString const file_;
    ExporterObject::Format const format_;
    Picture::RenderRequest request_;
    std::vector<StatusReport> reports_;
    std::atomic<int> percent_{0};
    QImage image_;
    QString problem_;
    QString summary_;
};

} // namespace Fractal
