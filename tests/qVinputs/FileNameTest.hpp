#pragma once

#include "qVinputs/TextEditorTest.hpp"
#include "support/FileDialogs.hpp"

#include <lattice/Scheduler.hpp>
#include <QPushButton>

/// Records the pools in which it runs.
class RecordingObject : public Kolt::VObject {
public:
    RecordingObject(std::string const& name, std::vector<std::string>& log) : Kolt::VObject(name), log_(log) {}
    void run(Kolt::PoolPtr const& pool) override {
        log_.push_back(Name() + (pool ? " in " + pool->Name() : " in no pool"));
    }

private:
    std::vector<std::string>& log_;
};

/// Buttons that choose file names, and some files to choose.
class FileName : public TextEditorTest {
protected:
    FileName() {
        Kolt::VScheduler::runDue();
        QDir().mkpath(folder());
        for (auto const* const name : {"first.tar.gz", "second.txt", "third.pdf"}) {
            QFile file(folder() + QLatin1Char('/') + QLatin1String(name));
            if (!file.open(QIODevice::WriteOnly))
                throw std::runtime_error("cannot write a file");
        }
    }

    static QString folder() { return QDir::homePath() + QStringLiteral("/files"); }
    static QString path(char const* name) { return folder() + QLatin1Char('/') + QLatin1String(name); }
    static std::string text(QString const& string) { return string.toStdString(); }

    QPushButton* open(Kolt::ParameterRef const& parameter) { return create<QPushButton>("OpenFileCreator", parameter); }
    QPushButton* save(Kolt::ParameterRef const& parameter) { return create<QPushButton>("FileNameCreator", parameter); }
    QPushButton* savePdf(Kolt::ParameterRef const& parameter) {
        return create<QPushButton>("FileNameCreatorPDF", parameter);
    }

    /// Clicks the button and calls `work` with the dialog that opens.
    void click(QPushButton* button, std::function<void(QFileDialog&)> const& work) {
        ASSERT_TRUE(showPanel());
        EXPECT_TRUE(withFileDialog([&] { QTest::mouseClick(button, Qt::LeftButton); }, work));
    }
    void choose(QPushButton* button, QString const& name) {
        click(button, [&](QFileDialog& dialog) { enterFileName(dialog, name); });
    }
    void cancel(QPushButton* button) {
        click(button, [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    }
    using Object = Tessera::StrongPtr<RecordingObject, Kolt::VManagedObjectBase>;
    Object makeObject(std::string const& name, Kolt::ParameterPtr const& bound) {
        Object object(new RecordingObject(name, log_));
        if (bound)
            object->addSlot(Tessera::StrongPtr<Kolt::VSlot>(new Kolt::VSlot("file", bound)));
        return object;
    }

    std::vector<std::string> log_;
};
