#include <fractal/ui/RenderQueue.hpp>

#include <lattice/ActionNotifier.hpp>
#include <QPointer>
#include <QTextDocument>

namespace Fractal {

RenderQueue::RenderQueue(QObject* parent) : QObject(parent) {}

RenderQueue::~RenderQueue() = default;

void RenderQueue::setNetwork(Talo::Network* network) {
    // Waits for the running job, which uses parameters of the network.
    worker_.reset();
    bool const wasComputing = isComputing();
    jobs_.clear();
    network_.reset();
    if (network) {
        network_ = std::make_unique<ComputingNetwork>(*network);
        worker_ = std::make_unique<Worker>();
        connect(worker_.get(), &Worker::done, this, &RenderQueue::take);
        connect(worker_.get(), &Worker::progressed, this, &RenderQueue::progressed);
        for (auto* const exporter : network_->all<ExporterObject>())
            exporter->setWriter([renderQueue = QPointer<RenderQueue>(this)](
                                    ExporterObject::Format format, QString const& file, Kolt::PoolPtr const& pool) {
                if (renderQueue)
                    renderQueue->write(format, file, pool);
            });
    }
    if (wasComputing)
        emit progressed();
}

void RenderQueue::start(Kolt::PoolPtr const& pool) {
    if (!network_ || !network_->computes())
        return;
    for (auto const& job : jobs_) {
        if (!job->isToBeWritten()) {
            job->isReplaced = true;
            job->cancelled = true;
        }
    }
    post(std::make_shared<PictureJob>(*network_, pool));
}

void RenderQueue::write(ExporterObject::Format format, QString const& file, Kolt::PoolPtr const& pool) {
    if (!network_)
        return;
    if (!network_->computes()) {
        Kolt::VActionNotifier::Warning(
            tr("%1: there is no formula in the network, and so no picture to be written").arg(file).toStdString());
        return;
    }
    post(std::make_shared<PictureJob>(*network_, pool, file, format));
}

void RenderQueue::cancel() {
    if (worker_)
        worker_->cancel();
}

void RenderQueue::reportIdle(Kolt::PoolPtr const& pool) {
    if (!network_)
        return;
    for (auto const* const object : network_->all<RenderObject>())
        StatusReport(object, pool).write(tr("Nothing is being computed."));
}

int RenderQueue::percent() const {
    return jobs_.empty() ? 0 : jobs_.front()->percent();
}

QString RenderQueue::description() const {
    return jobs_.empty() ? QString() : jobs_.front()->say(PictureJob::Sentence::Computing);
}

QString RenderQueue::unwritten() const {
    for (auto const& job : jobs_)
        if (job->isToBeWritten())
            return tr("%1 is still being written.").arg(job->file());
    return {};
}

void RenderQueue::post(std::shared_ptr<PictureJob> const& job) {
    jobs_.push_back(job);
    worker_->post(job);
    emit progressed();
}

void RenderQueue::take() {
    // Take one job for each done() signal. If a later job is done already, the progress that its thread reported is
    // still queued and would overwrite its final status, which is written here. The network, and the worker with it,
    // may be gone by now.
    auto const task = worker_ ? worker_->takeDone() : nullptr;
    if (!task)
        return;
    auto const job = std::static_pointer_cast<PictureJob>(task);
    jobs_.pop_front();
    emit progressed();
    finish(*job);
}

void RenderQueue::finish(PictureJob const& job) {
    if (job.isReplaced)
        return;
    QString outcome;
    if (job.cancelled && job.image().isNull())
        outcome = job.say(PictureJob::Sentence::Cancelled);
    else if (!job.problem().isEmpty())
        outcome = job.problem();
    else
        outcome = job.say(PictureJob::Sentence::Done);

    // A file name may look like rich text.
    job.writeStatus(Qt::mightBeRichText(outcome) ? QStringLiteral("<p>%1</p>").arg(outcome.toHtmlEscaped()) : outcome);
    // A listener may have removed the network.
    if (network_ && !job.summary().isEmpty()) {
        for (auto const* const object : network_->all<RenderObject>())
            object->showProgress(job.summary(), job.pool());
    }
    if (!job.problem().isEmpty())
        Kolt::VActionNotifier::Warning(outcome.toStdString());
    else
        emit reported(outcome);
    if (!job.image().isNull() && !job.isToBeWritten())
        emit computed(job.image(), job.pool());
}

} // namespace Fractal
