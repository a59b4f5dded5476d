#include "qVinputs/TextEditorTest.hpp"
#include "support/FileDialogs.hpp"

#include <lattice/Scheduler.hpp>
#include <QMetaMethod>
#include <QPushButton>
#include <QTranslator>

namespace {

using namespace Kolt;
using testing::ElementsAre;
using testing::IsEmpty;

/// Records what it was scheduled for.
class Recorder : public VObject {
public:
    Recorder(std::string const& name, std::vector<std::string>& log) : VObject(name), log_(log) {}
    void run(PoolPtr const& pool) override { log_.push_back(Name() + (pool ? " in " + pool->Name() : " in no pool")); }

private:
    std::vector<std::string>& log_;
};

/// Marks every text of the file name button by a tilde.
class Tildes : public QTranslator {
public:
    QString translate(char const* context, char const* text, char const*, int) const override {
        if (qstrcmp(context, "Kolt::VQStringFileNameInput") != 0)
            return {};
        return QLatin1Char('~') + QString::fromUtf8(text);
    }
    bool isEmpty() const override { return false; }
};

class FileName : public TextEditorTest {
protected:
    FileName() {
        VScheduler::runDue();
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

    QPushButton* open(ParameterRef const& parameter) { return create<QPushButton>("OpenFileCreator", parameter); }
    QPushButton* save(ParameterRef const& parameter) { return create<QPushButton>("FileNameCreator", parameter); }
    QPushButton* savePdf(ParameterRef const& parameter) { return create<QPushButton>("FileNameCreatorPDF", parameter); }

    /// Clicks the button and does something with the dialog that opens.
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
    using Object = Tessera::StrongPtr<Recorder, VManagedObjectBase>;
    Object makeObject(std::string const& name, ParameterPtr const& bound) {
        Object object(new Recorder(name, log_));
        if (bound)
            object->addSlot(Tessera::StrongPtr<VSlot>(new VSlot("file", bound)));
        return object;
    }

    std::vector<std::string> log_;
};

TEST_F(FileName, IsKnownToQtByItsNames) {
    auto const parameter = makeText("");
    auto* const button = open(parameter);
    auto const& meta = *button->metaObject();
    EXPECT_STREQ(meta.className(), "Kolt::VQStringFileNameInput");
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), "myFileNameGui()");
    EXPECT_EQ(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
    EXPECT_EQ(button->qt_metacast("VInputValue<string>"), dynamic_cast<VInput<std::string>*>(button));
}

TEST_F(FileName, IsWhatTheThreePreferencesGet) {
    for (auto const& [preference, name] : {std::pair<std::string, std::string>{"Save as", "FileNameCreator"},
                                           {"Save as PDF", "FileNameCreatorPDF"},
                                           {"FileInput", "OpenFileCreator"}}) {
        auto const parameter = makeText("");
        parameter->setCreationPreferences(PreferencesPtr(new VCreationPreferences(preference)));
        EXPECT_EQ(makeEditor(parameter, parent, &pools).choice.creator.strong()->Name(), name);
    }
}

TEST_F(FileName, StartsWithTheCaptionOfItsMode) {
    auto const parameter = makeText("");
    EXPECT_EQ(open(parameter)->text(), QStringLiteral("Select File"));
    EXPECT_EQ(save(parameter)->text(), QStringLiteral("Save as"));
    EXPECT_EQ(savePdf(parameter)->text(), QStringLiteral("Save as PDF"));
}

TEST_F(FileName, StartsWithTheBaseNameToOpenAndTheCaptionToSave) {
    auto const parameter = makeText("/data/first.tar.gz");
    auto* const button = open(parameter);
    EXPECT_EQ(button->text(), QStringLiteral("first"));
    EXPECT_EQ(button->toolTip(), QStringLiteral("/data/first.tar.gz"));
    EXPECT_EQ(save(parameter)->text(), QStringLiteral("Save as"));
    EXPECT_EQ(save(parameter)->toolTip(), QString());
    EXPECT_EQ(savePdf(parameter)->text(), QStringLiteral("Save as PDF"));
}

TEST_F(FileName, TakesItsModeFromTheCreatorAndNotFromTheParameter) {
    auto const parameter = makeText("");
    parameter->setCreationPreferences(PreferencesPtr(new VCreationPreferences("FileInput")));
    EXPECT_EQ(savePdf(parameter)->text(), QStringLiteral("Save as PDF"));
}

TEST_F(FileName, TranslatesItsCaptions) {
    Tildes tildes;
    ASSERT_TRUE(QCoreApplication::installTranslator(&tildes));
    auto const parameter = makeText("");
    auto* const openButton = open(parameter);
    auto* const saveButton = save(parameter);
    auto* const pdfButton = savePdf(parameter);
    EXPECT_EQ(openButton->text(), QStringLiteral("~Select File"));
    EXPECT_EQ(saveButton->text(), QStringLiteral("~Save as"));
    EXPECT_EQ(pdfButton->text(), QStringLiteral("~Save as PDF"));
    click(saveButton, [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("~Save File"));
        dialog.reject();
    });
    click(pdfButton, [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.nameFilters(), QStringList(QStringLiteral("~PDF (*.pdf)")));
        dialog.reject();
    });
    click(openButton, [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("~Select File"));
        dialog.reject();
    });
    // After a cancelled dialog it is the bare text.
    EXPECT_EQ(openButton->text(), QStringLiteral("Select File"));
    QCoreApplication::removeTranslator(&tildes);
}

TEST_F(FileName, AsksForAnExistingFileToOpen) {
    auto const parameter = makeText("");
    click(open(parameter), [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Select File"));
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        dialog.reject();
    });
}

TEST_F(FileName, AsksForAnyFileToSave) {
    auto const parameter = makeText("");
    click(save(parameter), [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Save File"));
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.nameFilters(), QFileDialog().nameFilters());
        dialog.reject();
    });
    click(savePdf(parameter), [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Save File"));
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.nameFilters(), QStringList(QStringLiteral("PDF (*.pdf)")));
        dialog.reject();
    });
}

TEST_F(FileName, OpensTheDialogAtItsFile) {
    auto const parameter = makeText(text(path("second.txt")));
    click(open(parameter), [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath(), folder());
        EXPECT_EQ(dialog.selectedFiles(), QStringList(path("second.txt")));
        dialog.reject();
    });
}

TEST_F(FileName, TakesTheFilterOfTheDialogAnewAtEveryClick) {
    auto const parameter = makeText("");
    auto* const button = open(parameter);
    auto const filters = [&] {
        QStringList shown;
        click(button, [&](QFileDialog& dialog) {
            shown = dialog.nameFilters();
            dialog.reject();
        });
        return shown;
    };
    auto const none = QFileDialog().nameFilters();
    EXPECT_EQ(filters(), none);
    parameter->setProperty("Extension", makeValue(std::string("Text (*.txt);;All (*)")), nullptr, nullptr, nullptr);
    EXPECT_EQ(filters(), QStringList({QStringLiteral("Text (*.txt)"), QStringLiteral("All (*)")}));
    parameter->setProperty("Extension", makeValue(7), nullptr, nullptr, nullptr);
    EXPECT_EQ(filters(), none);
}

TEST_F(FileName, CommitsTheChosenFileAndShowsItsBaseName) {
    auto const parameter = makeText("");
    watch(parameter);
    auto* const button = open(parameter);
    auto const before = Tessera::Ageable::GlobalTime.load();
    choose(button, path("first.tar.gz"));
    EXPECT_EQ(button->text(), QStringLiteral("first"));
    EXPECT_EQ(button->toolTip(), path("first.tar.gz"));
    EXPECT_THAT(recorder.values, ElementsAre(text(path("first.tar.gz"))));
    EXPECT_EQ(parameter->ownValue()->age(), before + 1);
}

TEST_F(FileName, KeepsItsCaptionWhenSomethingIsSaved) {
    auto const parameter = makeText("");
    watch(parameter);
    auto* const button = save(parameter);
    choose(button, path("new.txt"));
    EXPECT_EQ(button->text(), QStringLiteral("Save as"));
    EXPECT_EQ(button->toolTip(), QString());
    EXPECT_THAT(recorder.values, ElementsAre(text(path("new.txt"))));
}

TEST_F(FileName, CommitsAPdfFile) {
    auto const parameter = makeText("");
    choose(savePdf(parameter), path("new.pdf"));
    EXPECT_EQ(textOf(parameter), text(path("new.pdf")));
}

TEST_F(FileName, CommitsTheEmptyNameOfACancelledDialog) {
    auto const parameter = makeText(text(path("second.txt")));
    auto const object = makeObject("bound", parameter);
    watch(parameter);
    auto* const button = open(parameter);
    cancel(button);
    EXPECT_EQ(button->text(), QStringLiteral("Select File"));
    EXPECT_EQ(button->toolTip(), QString());
    EXPECT_THAT(recorder.values, ElementsAre(""));
    EXPECT_GT(parameter->ownValue()->age(), 0U);
    EXPECT_EQ(VScheduler::waiting(), 0);

    change(parameter, text(path("new.txt")));
    cancel(save(parameter));
    EXPECT_EQ(textOf(parameter), "");
    EXPECT_EQ(VScheduler::waiting(), 0);
}

TEST_F(FileName, SchedulesEveryObjectBoundToTheParameter) {
    auto const parameter = makeText("");
    auto const other = makeText("");
    auto const reader = makeObject("reader", parameter);
    auto const bystander = makeObject("bystander", other);
    auto const idle = makeObject("idle", nullptr);
    auto const writer = makeObject("writer", parameter);
    choose(open(parameter), path("second.txt"));
    // Queued: nothing ran inside the click.
    EXPECT_THAT(log_, IsEmpty());
    EXPECT_EQ(VScheduler::waiting(), 2);
    EXPECT_EQ(VScheduler::nextTime(), 0.0);
    VScheduler::runDue();
    EXPECT_THAT(log_, ElementsAre("reader in draft", "writer in draft"));
}

TEST_F(FileName, SchedulesWhatIsSavedToo) {
    auto const parameter = makeText("");
    auto const writer = makeObject("writer", parameter);
    choose(save(parameter), path("new.txt"));
    VScheduler::runDue();
    EXPECT_THAT(log_, ElementsAre("writer in draft"));
}

TEST_F(FileName, ReportsAMissingOwnerAndSchedulesNothing) {
    auto parameter = makeText("");
    auto const object = makeObject("bound", parameter);
    ParameterRef const gone(parameter);
    parameter.reset();
    auto* const button = open(gone);
    EXPECT_EQ(button->text(), QStringLiteral("Select File"));
    EXPECT_THAT(takeOutput(), IsEmpty());
    choose(button, path("second.txt"));
    EXPECT_EQ(takeWrittenOutput(), missingOwner);
    EXPECT_EQ(VScheduler::waiting(), 0);
    cancel(button);
    EXPECT_THAT(takeOutput(), ElementsAre(missingOwnerLine));
}

TEST_F(FileName, ReportsOnceAnOwnerThatGoesDuringTheCommit) {
    auto parameter = makeText("");
    auto const object = makeObject("bound", parameter);
    watch(parameter);
    auto* const button = open(parameter);
    recorder.reaction = [&] { parameter.reset(); };
    choose(button, path("second.txt"));
    EXPECT_THAT(takeOutput(), ElementsAre(missingOwnerLine));
    EXPECT_EQ(VScheduler::waiting(), 0);
}

TEST_F(FileName, StoresNothingWithoutAPool) {
    auto const parameter = makeText("old");
    auto const object = makeObject("bound", parameter);
    watch(parameter);
    auto* const button = open(parameter);
    pools.use(nullptr);
    choose(button, path("second.txt"));
    EXPECT_EQ(button->text(), QStringLiteral("second"));
    EXPECT_EQ(textOf(parameter), "old");
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_THAT(recorder.values, IsEmpty());
    // The walk does not depend on the store.
    VScheduler::runDue();
    EXPECT_THAT(log_, ElementsAre("bound in no pool"));
}

TEST_F(FileName, ShowsAValueFromElsewhereInEveryMode) {
    auto const parameter = makeText("");
    watch(parameter);
    auto const buttons = {open(parameter), save(parameter), savePdf(parameter)};
    change(parameter, std::string("/data/\u00fcbung.tar.gz"));
    for (auto* const button : buttons) {
        EXPECT_EQ(button->text(), QString::fromUtf8("\u00fcbung"));
        EXPECT_EQ(button->toolTip(), QString::fromUtf8("/data/\u00fcbung.tar.gz"));
    }
    change(parameter, std::string());
    for (auto* const button : buttons) {
        EXPECT_EQ(button->text(), QString());
        EXPECT_EQ(button->toolTip(), QString());
    }
    EXPECT_EQ(recorder.values.size(), 2U);
}

TEST_F(FileName, KeepsItsCaptionWhenOnlyAPropertyChanges) {
    auto const parameter = makeText("");
    auto* const button = open(parameter);
    parameter->setProperty("Extension", makeValue(std::string("Text (*.txt)")), nullptr, nullptr, nullptr);
    EXPECT_EQ(button->text(), QStringLiteral("Select File"));
}

TEST_F(FileName, DoesNotEchoASecondButton) {
    auto const parameter = makeText("");
    watch(parameter);
    auto* const left = open(parameter);
    auto* const right = save(parameter);
    choose(left, path("second.txt"));
    EXPECT_EQ(right->text(), QStringLiteral("second"));
    EXPECT_EQ(recorder.values.size(), 1U);
}

TEST_F(FileName, IgnoresAValueOfAnotherType) {
    auto const parameter = makeText("/data/kept.txt");
    auto* const button = open(parameter);
    auto const held = input.strong();
    held->onValueChange(makeValue(7), VContext(nullptr), nullptr);
    held->onValueChange(nullptr, VContext(nullptr), nullptr);
    EXPECT_EQ(button->text(), QStringLiteral("kept"));
}

TEST_F(FileName, WritesIntoItsPoolAlone) {
    auto const parameter = makeText("own", Values::PerPool);
    auto* const button = open(parameter);
    choose(button, path("second.txt"));
    EXPECT_EQ(localTextOf(parameter), text(path("second.txt")));
    EXPECT_EQ(textOf(parameter), "own");
    change(parameter, std::string("elsewhere"), secondPool);
    EXPECT_EQ(button->text(), QStringLiteral("second"));
}

TEST_F(FileName, MayBeDeletedWithItsPanelWhileItsDialogIsOpen) {
    for (auto const* const creatorName : {"OpenFileCreator", "FileNameCreator"}) {
        if (!parent) {
            parent = new QWidget;
            parent->setLayout(new QVBoxLayout);
        }
        auto const parameter = makeText("old");
        watch(parameter);
        QPointer<QPushButton> const button = create<QPushButton>(creatorName, parameter);
        QPointer<QFileDialog> open;
        click(button, [&](QFileDialog& dialog) {
            open = &dialog;
            delete parent;
            ASSERT_TRUE(open);
            EXPECT_FALSE(open->isVisible());
            EXPECT_EQ(open->result(), static_cast<int>(QDialog::Rejected));
        });
        EXPECT_FALSE(button);
        EXPECT_FALSE(open);
        EXPECT_EQ(textOf(parameter), "old");
        EXPECT_THAT(recorder.values, IsEmpty());
    }
}

TEST_F(FileName, MayBeDeletedByWhoeverIsToldAndSchedulesAllTheSame) {
    auto const parameter = makeText("");
    auto const object = makeObject("bound", parameter);
    watch(parameter);
    QPointer<QPushButton> const button = open(parameter);
    recorder.reaction = [&] { delete button; };
    choose(button, path("second.txt"));
    EXPECT_FALSE(button);
    VScheduler::runDue();
    EXPECT_THAT(log_, ElementsAre("bound in draft"));
}

TEST_F(FileName, CarriesNamesOfManyCharacters) {
    auto const bytes = randomBytes(20'000);
    auto const parameter = makeText(bytes);
    EXPECT_EQ(open(parameter)->toolTip(), QString::fromStdString(bytes));
    std::string const name(1'000'000, 'x');
    auto* const button = open(parameter);
    change(parameter, name);
    EXPECT_EQ(button->toolTip().size(), 1'000'000);
    EXPECT_EQ(button->text().size(), 1'000'000);
}

} // namespace
