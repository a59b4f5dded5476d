#include <lattice/ActionNotifier.hpp>
#include <panel/objects/Picture.hpp>
#include <panel/objects/StatusReport.hpp>
#include <panel/objects/Workshop.hpp>
#include <QElapsedTimer>
#include <QLocale>
#include <QPointer>
#include <QTextDocument>

namespace Panel {

namespace {

using Format = ExporterObject::Format;

QString nameOf(PoolPtr const& pool) {
    return pool ? QString::fromStdString(pool->Name()) : Workshop::tr("(no pool)");
}

QString percentText(double percent) {
    return Workshop::tr("%1 %").arg(QLocale().toString(percent, 'f', 0));
}

} // namespace

/// One picture: what it is made of, and what became of it.
class Workshop::Job : public Worker::Task {
public:
    /// `file` is empty for a picture to be looked at.
    Job(ComputingNetwork const& network, PoolPtr const& pool, QString file, Format format)
        : pool_(pool),
          file_(std::move(file)),
          format_(format),
          title_(file_.isEmpty() ? tr("the picture of %1").arg(nameOf(pool)) : file_) {
        order_.settings = network.settings(pool);
        order_.size = {order_.settings.width, order_.settings.height()};
        // On a page the texts stand around the picture.
        order_.hasTexts = file_.isEmpty() || format == Format::Png;
        for (auto const* const object : network.all<RenderObject>())
            reports_.emplace_back(object, pool);
    }

    void run(Worker& worker) override {
        QElapsedTimer clock;
        clock.start();
        auto const tell = [&](int percent) {
            percent_ = percent;
            writeStatus(tr("Computing %1: %2. %3")
                            .arg(title_.toHtmlEscaped(), percentText(percent),
                                 QStringLiteral("<a href=\"cancel\">%1</a>").arg(tr("Cancel"))));
            worker.reportProgress();
        };
        tell(0);
        FractalRenderer const renderer(static_cast<int>(std::thread::hardware_concurrency()));
        auto points = Picture::compute(order_, renderer, cancelled, tell);
        if (cancelled)
            return;
        if (!points) {
            problem_ = tr("There is not enough memory for %1.").arg(title_);
            return;
        }
        image_ = points->image;
        if (!file_.isEmpty())
            problem_ = format_ == Format::Png ? Picture::writePng(image_, file_)
                                              : Picture::writePdf(image_, order_.settings, file_);
        auto const& settings = order_.settings;
        summary_ = tr("%1 × %2 points, %3 steps at most, %4 × %4 samples: %5 s. %6 of the points stay.")
                       .arg(settings.width)
                       .arg(settings.height())
                       .arg(settings.iterations)
                       .arg(settings.quality)
                       .arg(QLocale().toString(static_cast<double>(clock.elapsed()) / 1000, 'f', 1),
                            percentText(points->staying * 100));
    }

    /// Any thread.
    void writeStatus(QString const& text) const {
        for (auto const& report : reports_)
            report.write(text);
    }

    bool isToBeWritten() const { return !file_.isEmpty(); }
    PoolPtr const& pool() const { return pool_; }
    QString const& title() const { return title_; }
    int percent() const { return percent_; }
    // Complete once the job is done.
    QImage const& image() const { return image_; }
    QString const& problem() const { return problem_; }
    QString const& summary() const { return summary_; }

    /// Whether another job took its place, so that nothing is to be said of it.
    bool isReplaced = false;

private:
    PoolPtr const pool_;
    QString const file_;
    Format const format_;
    QString const title_;
    Picture::Order order_;
    std::vector<StatusReport> reports_;
    std::atomic<int> percent_{0};
    QImage image_;
    QString problem_;
    QString summary_;
};

Workshop::Workshop(QObject* parent) : QObject(parent) {}

Workshop::~Workshop() = default;

void Workshop::setNetwork(Network* network) {
    // Waits for the running job, which refers to parameters of the network.
    worker_.reset();
    bool const wasComputing = isComputing();
    jobs_.clear();
    network_.reset();
    if (network) {
        network_ = std::make_unique<ComputingNetwork>(*network);
        worker_ = std::make_unique<Worker>();
        connect(worker_.get(), &Worker::done, this, &Workshop::take);
        connect(worker_.get(), &Worker::progressed, this, &Workshop::progressed);
        for (auto* const exporter : network_->all<ExporterObject>())
            exporter->setWriter(
                [workshop = QPointer<Workshop>(this)](Format format, QString const& file, PoolPtr const& pool) {
                    if (workshop)
                        workshop->write(format, file, pool);
                });
    }
    if (wasComputing)
        emit progressed();
}

void Workshop::start(PoolPtr const& pool) {
    if (!network_ || !network_->computes())
        return;
    for (auto const& job : jobs_) {
        if (!job->isToBeWritten()) {
            job->isReplaced = true;
            job->cancelled = true;
        }
    }
    post(std::make_shared<Job>(*network_, pool, QString(), Format::Png));
}

void Workshop::write(Format format, QString const& file, PoolPtr const& pool) {
    if (!network_)
        return;
    if (!network_->computes()) {
        Kolt::VActionNotifier::Warning(
            tr("%1: there is no formula in the network, and so no picture to be written").arg(file).toStdString());
        return;
    }
    post(std::make_shared<Job>(*network_, pool, file, format));
}

void Workshop::cancel() {
    if (worker_)
        worker_->cancel();
}

int Workshop::percent() const {
    return jobs_.empty() ? 0 : jobs_.front()->percent();
}

QString Workshop::description() const {
    return jobs_.empty() ? QString() : tr("Computing %1").arg(jobs_.front()->title());
}

void Workshop::post(std::shared_ptr<Job> const& job) {
    jobs_.push_back(job);
    worker_->post(job);
    emit progressed();
}

void Workshop::take() {
    // What is told may take the network away, and the worker with it.
    while (auto const task = worker_ ? worker_->takeDone() : nullptr) {
        auto const job = std::static_pointer_cast<Job>(task);
        jobs_.pop_front();
        emit progressed();
        finish(*job);
    }
}

void Workshop::finish(Job const& job) {
    if (job.isReplaced)
        return;
    QString outcome;
    if (job.cancelled && job.image().isNull())
        outcome = tr("Cancelled: %1.").arg(job.title());
    else if (!job.problem().isEmpty())
        outcome = job.problem();
    else if (job.isToBeWritten())
        outcome = tr("Wrote %1.").arg(job.title());
    else
        outcome = tr("Computed %1.").arg(job.title());

    // The name of a file may look like rich text.
    job.writeStatus(Qt::mightBeRichText(outcome) ? QStringLiteral("<p>%1</p>").arg(outcome.toHtmlEscaped()) : outcome);
    if (!job.summary().isEmpty()) {
        for (auto const* const object : network_->all<RenderObject>())
            object->tellProgress(job.summary(), job.pool());
    }
    if (!job.problem().isEmpty())
        Kolt::VActionNotifier::Warning(outcome.toStdString());
    else
        emit told(outcome);
    if (!job.image().isNull() && !job.isToBeWritten())
        emit computed(job.image(), job.pool());
}

} // namespace Panel
