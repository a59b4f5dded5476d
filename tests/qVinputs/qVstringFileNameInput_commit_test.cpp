#include "qVinputs/FileNameTest.hpp"

namespace {

using namespace Kolt;
using testing::ElementsAre;
using testing::IsEmpty;

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
    // The objects are scheduled; none runs during the click.
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
    // The objects are scheduled even if nothing was stored.
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

TEST_F(FileName, MayBeDeletedByAListenerAndSchedulesAllTheSame) {
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
