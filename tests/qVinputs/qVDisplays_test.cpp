#include "qVinputs/TextEditorTest.hpp"
#include <bramble/Info.hpp>
#include <bramble/ObjectStatus.hpp>
#include <lattice/NotificationThread.hpp>

#include <QLabel>
#include <QMetaMethod>
#include <QSignalSpy>
#include <thread>

namespace {

using namespace Kolt;
using testing::ElementsAre;
using testing::IsEmpty;

class Displays : public TextEditorTest {
protected:
    QLabel* show(ParameterRef const& parameter, std::string const& creatorName) {
        return create<QLabel>(creatorName, parameter);
    }
    static ParameterPtr makeInfo(std::string const& text, Values values = Values::Shared) {
        return makeValueParameter(info{text}, values);
    }
    static ParameterPtr makeStatus(std::string const& text, Values values = Values::Shared) {
        return makeValueParameter(VObjectStatus(text), values);
    }
};

class InformationDisplay : public Displays {};

TEST_F(InformationDisplay, IsWhatAnInfoGets) {
    auto const parameter = makeInfo("a hint");
    auto const editor = makeEditor(parameter, parent, &pools);
    EXPECT_EQ(editor.choice.creator.strong()->Name(), "InformationDisplay");
    ASSERT_TRUE(dynamic_cast<QLabel*>(editor.widget.data()));
    EXPECT_STREQ(editor.widget->metaObject()->className(), "QLabel");
    EXPECT_EQ(editor.input.strong().get(), dynamic_cast<VInput<info>*>(editor.widget.data()));
}

TEST_F(InformationDisplay, ShowsTheTextAndLeavesTheLabelAsQtMakesIt) {
    auto const parameter = makeInfo("Gr\u00fc\u00dfe \U0001F600");
    auto* const label = show(parameter, "InformationDisplay");
    EXPECT_EQ(label->text(), QString::fromUtf8("Gr\u00fc\u00dfe \U0001F600"));
    QLabel const plain;
    EXPECT_EQ(label->textInteractionFlags(), plain.textInteractionFlags());
    EXPECT_EQ(label->alignment(), plain.alignment());
    EXPECT_EQ(label->wordWrap(), plain.wordWrap());
    EXPECT_EQ(label->font(), plain.font());
    EXPECT_EQ(label->windowFlags() & Qt::WindowType_Mask, Qt::Widget);
}

TEST_F(InformationDisplay, FollowsAChange) {
    auto const parameter = makeInfo("old");
    auto* const label = show(parameter, "InformationDisplay");
    watch(parameter);
    change(parameter, info{"new"});
    EXPECT_EQ(label->text(), QStringLiteral("new"));
    EXPECT_THAT(recorder.values, ElementsAre("new"));
}

TEST_F(InformationDisplay, IgnoresAValueOfAnotherType) {
    auto const parameter = makeInfo("kept");
    auto* const label = show(parameter, "InformationDisplay");
    auto const held = input.strong();
    held->onValueChange(makeValue(std::string("text")), VContext(nullptr), nullptr);
    held->onValueChange(makeValue(VObjectStatus("status")), VContext(nullptr), nullptr);
    held->onValueChange(nullptr, VContext(nullptr), nullptr);
    EXPECT_EQ(label->text(), QStringLiteral("kept"));
}

TEST_F(InformationDisplay, IsEmptyWithoutAnOwner) {
    auto parameter = makeInfo("gone");
    ParameterRef const gone(parameter);
    parameter.reset();
    EXPECT_EQ(show(gone, "InformationDisplay")->text(), QString());
    EXPECT_THAT(takeOutput(), IsEmpty());
}

TEST_F(InformationDisplay, ShowsItsPoolAlone) {
    auto const parameter = makeInfo("own", Values::PerPool);
    auto* const label = show(parameter, "InformationDisplay");
    change(parameter, info{"elsewhere"}, secondPool);
    EXPECT_EQ(label->text(), QStringLiteral("own"));
    change(parameter, info{"here"});
    EXPECT_EQ(label->text(), QStringLiteral("here"));
}

TEST_F(InformationDisplay, CarriesAMegabyteAndRandomBytes) {
    auto const parameter = makeInfo(std::string(1'000'000, 'x'));
    auto* const label = show(parameter, "InformationDisplay");
    EXPECT_EQ(label->text().size(), 1'000'000);
    auto const bytes = randomBytes(20'000);
    change(parameter, info{bytes});
    EXPECT_TRUE(label->text() == QString::fromStdString(bytes));
}

class StatusDisplay : public Displays {};

/// A display in a host that notifies on the thread that reports.
class StatusOfAWorker : public Displays {
protected:
    void SetUp() override {
        Displays::SetUp();
        NotificationThread::install(nullptr);
    }
    /// What the label shows after a worker stored a text for a pool.
    static std::string shownAfter(QLabel* label, ParameterPtr const& parameter, char const* text, PoolPtr const& pool) {
        std::thread worker([&] { change(parameter, VObjectStatus(text), pool); });
        worker.join();
        QCoreApplication::sendPostedEvents(label, QEvent::MetaCall);
        return label->text().toStdString();
    }
};

TEST_F(StatusDisplay, IsKnownToQtByItsNames) {
    auto const parameter = makeStatus("");
    auto* const label = show(parameter, "StatusDisplay");
    auto const& meta = *label->metaObject();
    EXPECT_STREQ(meta.className(), "Kolt::qVObjectStatus");
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), "myUpdateLabelText(QString)");
    EXPECT_EQ(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    EXPECT_EQ(label->qt_metacast("VInputValue<VObjectStatus>"), dynamic_cast<VInput<VObjectStatus>*>(label));
}

TEST_F(StatusDisplay, IsWhatAStatusGets) {
    auto const parameter = makeStatus("idle");
    EXPECT_EQ(makeEditor(parameter, parent, &pools).choice.creator.strong()->Name(), "StatusDisplay");
}

TEST_F(StatusDisplay, ShowsTheText) {
    auto const parameter = makeStatus("72\u00a0% \u2026");
    EXPECT_EQ(show(parameter, "StatusDisplay")->text(), QString::fromUtf8("72\u00a0% \u2026"));
}

TEST_F(StatusDisplay, ChangesThroughItsSignal) {
    auto const parameter = makeStatus("idle");
    auto* const label = show(parameter, "StatusDisplay");
    QSignalSpy const spy(label, SIGNAL(myUpdateLabelText(QString)));
    change(parameter, VObjectStatus("working"));
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).toString(), QStringLiteral("working"));
    EXPECT_EQ(label->text(), QStringLiteral("working"));
    label->blockSignals(true);
    change(parameter, VObjectStatus("done"));
    EXPECT_EQ(label->text(), QStringLiteral("working"));
}

TEST_F(StatusDisplay, LetsTheMouseSelectItsText) {
    auto const parameter = makeStatus("72 of 100 lines");
    auto* const label = show(parameter, "StatusDisplay");
    EXPECT_EQ(label->textInteractionFlags(), Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse);
    EXPECT_EQ(static_cast<int>(label->textInteractionFlags()), 5);
    ASSERT_TRUE(showPanel());
    QTest::mouseDClick(label, Qt::LeftButton, Qt::NoModifier, QPoint(2, label->height() / 2));
    EXPECT_EQ(label->selectedText(), QStringLiteral("72"));
}

TEST_F(StatusDisplay, ReportsALinkAndOpensNothing) {
    auto const parameter = makeStatus("<a href=\"file:///nowhere\">a log that can be read</a>");
    auto* const label = show(parameter, "StatusDisplay");
    ASSERT_TRUE(showPanel());
    EXPECT_FALSE(label->openExternalLinks());
    QSignalSpy const spy(label, &QLabel::linkActivated);
    QTest::mouseClick(label, Qt::LeftButton, Qt::NoModifier, QPoint(20, label->height() / 2));
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).toString(), QStringLiteral("file:///nowhere"));
}

TEST_F(StatusDisplay, IgnoresAValueOfAnotherType) {
    auto const parameter = makeStatus("kept");
    auto* const label = show(parameter, "StatusDisplay");
    auto const held = input.strong();
    held->onValueChange(makeValue(info{"text"}), VContext(nullptr), nullptr);
    held->onValueChange(nullptr, VContext(nullptr), nullptr);
    EXPECT_EQ(label->text(), QStringLiteral("kept"));
}

TEST_F(StatusDisplay, IsEmptyWithoutAnOwner) {
    auto parameter = makeStatus("gone");
    ParameterRef const gone(parameter);
    parameter.reset();
    EXPECT_EQ(show(gone, "StatusDisplay")->text(), QString());
    EXPECT_THAT(takeOutput(), IsEmpty());
}

TEST_F(StatusDisplay, ShowsItsPoolAlone) {
    auto const parameter = makeStatus("own", Values::PerPool);
    auto* const label = show(parameter, "StatusDisplay");
    change(parameter, VObjectStatus("elsewhere"), secondPool);
    EXPECT_EQ(label->text(), QStringLiteral("own"));
    change(parameter, VObjectStatus("here"));
    EXPECT_EQ(label->text(), QStringLiteral("here"));
}

TEST_F(StatusOfAWorker, IsShownInItsPoolAlone) {
    auto const parameter = makeStatus("own", Values::PerPool);
    auto* const label = show(parameter, "StatusDisplay");
    EXPECT_EQ(shownAfter(label, parameter, "elsewhere", secondPool), "own");
    EXPECT_EQ(shownAfter(label, parameter, "here", firstPool), "here");
    pools.use(secondPool);
    input.strong()->notify(parameter->effectiveValue(secondPool), VContext(secondPool, nullptr));
    EXPECT_EQ(label->text(), QStringLiteral("elsewhere"));
    EXPECT_EQ(shownAfter(label, parameter, "behind", firstPool), "elsewhere");
    EXPECT_EQ(shownAfter(label, parameter, "in front", secondPool), "in front");
}

TEST_F(StatusOfAWorker, IsShownInEveryPoolIfItIsShared) {
    auto const parameter = makeStatus("own");
    auto* const label = show(parameter, "StatusDisplay");
    EXPECT_EQ(shownAfter(label, parameter, "first", firstPool), "first");
    EXPECT_EQ(shownAfter(label, parameter, "second", secondPool), "second");
    EXPECT_EQ(shownAfter(label, parameter, "none", nullptr), "none");
}

TEST_F(StatusDisplay, MayBeDeletedByAListener) {
    auto const parameter = makeStatus("idle");
    QPointer<QLabel> const label = show(parameter, "StatusDisplay");
    QSignalSpy spy(label, SIGNAL(myUpdateLabelText(QString)));
    watch(parameter);
    recorder.reaction = [&] { delete label; };
    change(parameter, VObjectStatus("working"));
    EXPECT_EQ(spy.count(), 1);
    EXPECT_FALSE(label);
    change(parameter, VObjectStatus("done"));
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(StatusDisplay, CarriesAMegabyteAndRandomBytes) {
    auto const parameter = makeStatus(std::string(1'000'000, 'x'));
    auto* const label = show(parameter, "StatusDisplay");
    EXPECT_EQ(label->text().size(), 1'000'000);
    auto const bytes = randomBytes(20'000);
    change(parameter, VObjectStatus(bytes));
    EXPECT_TRUE(label->text() == QString::fromStdString(bytes));
}

} // namespace
