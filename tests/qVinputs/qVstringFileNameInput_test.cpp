#include "qVinputs/FileNameTest.hpp"

#include <QMetaMethod>
#include <QTranslator>

namespace {

using namespace Kolt;
using testing::ElementsAre;
using testing::IsEmpty;

/// A translator that prefixes every text of the file name button with a tilde.
class Tildes : public QTranslator {
public:
    QString translate(char const* context, char const* text, char const*, int) const override {
        if (qstrcmp(context, "Kolt::VQStringFileNameInput") != 0)
            return {};
        return QLatin1Char('~') + QString::fromUtf8(text);
    }
    bool isEmpty() const override { return false; }
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

TEST_F(FileName, ShowsAnAmpersandOfANameWithoutAShortcut) {
    auto const parameter = makeText("/data/R&D.txt");
    auto* const button = open(parameter);
    EXPECT_EQ(button->text(), QStringLiteral("R&&D")) << "which Qt draws as R&D";
    EXPECT_TRUE(button->shortcut().isEmpty());
    EXPECT_EQ(button->toolTip(), QStringLiteral("/data/R&D.txt"));
    change(parameter, std::string("/data/Q&A.txt"));
    EXPECT_EQ(button->text(), QStringLiteral("Q&&A"));
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
    // After a cancelled dialog the button shows the untranslated caption.
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

} // namespace
