#include "support/TestHost.hpp"

#include <QCheckBox>
#include <QFrame>
#include <QLayout>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

namespace {

class QBoolTest : public PluginTest {
protected:
    static QCheckBox* box(Kolt::Editor const& editor) { return editor.widget->findChild<QCheckBox*>(); }
};

} // namespace

TEST_F(QBoolTest, IsAFrameWithOneCheckBoxAtTheLeft) {
    auto const editor = open(makeParameter("switch", Kolt::makeValue(true)));
    ASSERT_TRUE(editor.widget);
    auto* const frame = qobject_cast<QFrame*>(editor.widget.data());
    ASSERT_NE(frame, nullptr);
    EXPECT_STREQ(frame->metaObject()->className(), "Kolt::QBool");
    EXPECT_STREQ(frame->metaObject()->superClass()->className(), "QFrame");
    auto const* const meta = frame->metaObject();
    ASSERT_EQ(meta->methodCount() - meta->methodOffset(), 1);
    auto const slot = meta->method(meta->methodOffset());
    EXPECT_EQ(slot.methodType(), QMetaMethod::Slot);
    EXPECT_EQ(slot.methodSignature(), QByteArray("clicked(bool)"));
    EXPECT_EQ(slot.parameterNames(), QList<QByteArray>{"checked"});
    EXPECT_NE(frame->qt_metacast("VInputValue<bool>"), nullptr);

    auto* const layout = frame->layout();
    ASSERT_NE(layout, nullptr);
    EXPECT_EQ(layout->contentsMargins(), QMargins(3, 3, 3, 3));
    ASSERT_EQ(layout->count(), 1);
    EXPECT_EQ(layout->itemAt(0)->widget(), box(editor));
    EXPECT_EQ(layout->itemAt(0)->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    ASSERT_NE(qobject_cast<QHBoxLayout*>(layout), nullptr);
    EXPECT_EQ(qobject_cast<QHBoxLayout*>(layout)->stretch(0), 0);
    EXPECT_EQ(frame->frameStyle(), QFrame().frameStyle());
    EXPECT_TRUE(box(editor)->text().isEmpty());
    EXPECT_EQ(box(editor)->parentWidget(), frame);
}

TEST_F(QBoolTest, StartsWithTheParametersOwnValueUntilTheHostShowsThePools) {
    for (bool const own : {false, true}) {
        auto const parameter = makeParameter("switch", Kolt::makeValue(own), {}, Kolt::VParameter::Values::PerPool);
        EXPECT_TRUE(Kolt::setParameterValue(*parameter, !own, firstPool, std::string(), true, nullptr, nullptr));
        auto const made = qtCreator("bool", "boolean")->create(parameter, parent, &pools);
        EXPECT_EQ(made.first->findChild<QCheckBox*>()->isChecked(), own);
        EXPECT_EQ(box(open(parameter))->isChecked(), !own);
    }
}

TEST_F(QBoolTest, EveryClickNotifiesAndStamps) {
    auto const parameter = makeParameter("switch", Kolt::makeValue(false));
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const editor = open(parameter);
    auto lastAge = parameter->ownValue()->age();
    for (auto const* const text : {"true", "false", "true"}) {
        QTest::mouseClick(box(editor), Qt::LeftButton);
        EXPECT_EQ(parameter->ownValue()->Text(), text);
        EXPECT_EQ(recorder.values.back(), text);
        EXPECT_GT(parameter->ownValue()->age(), lastAge);
        lastAge = parameter->ownValue()->age();
    }
    EXPECT_EQ(recorder.values.size(), 3U);
}

TEST_F(QBoolTest, TheSpaceKeyClicks) {
    auto const parameter = makeParameter("switch", Kolt::makeValue(false));
    auto const editor = open(parameter);
    QTest::keyClick(box(editor), Qt::Key_Space);
    EXPECT_EQ(parameter->ownValue()->Text(), "true");
}

TEST_F(QBoolTest, AChangeFromElsewhereChecksTheBoxWithoutAClick) {
    auto const parameter = makeParameter("switch", Kolt::makeValue(false));
    auto const editor = open(parameter);
    QSignalSpy const clicks(box(editor), &QCheckBox::clicked);
    EXPECT_TRUE(Kolt::setParameterValue(*parameter, true, firstPool, std::string(), false, nullptr, nullptr));
    EXPECT_TRUE(box(editor)->isChecked());
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(QBoolTest, AValueOfAnotherTypeLeavesTheBoxAsItWas) {
    auto const parameter = makeParameter("switch", Kolt::makeValue(true));
    auto const editor = open(parameter);
    editor.input.strong()->onValueChange(Kolt::makeValue(0), Kolt::VContext(nullptr), nullptr);
    EXPECT_TRUE(box(editor)->isChecked());
}

TEST_F(QBoolTest, AValueThatThePoolDoesNotHoldIsShownAndNotWritten) {
    auto const parameter = makeParameter("switch", Kolt::makeValue(false));
    auto const editor = open(parameter);
    editor.input.strong()->onValueChange(Kolt::makeValue(true), Kolt::VContext(nullptr), nullptr);
    EXPECT_TRUE(box(editor)->isChecked());
    EXPECT_EQ(parameter->ownValue()->Text(), "false");
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(QBoolTest, WithoutAPoolAClickChangesTheBoxAlone) {
    auto const parameter = makeParameter("switch", Kolt::makeValue(false));
    auto const editor = open(parameter);
    pools.use(nullptr);
    QTest::mouseClick(box(editor), Qt::LeftButton);
    EXPECT_TRUE(box(editor)->isChecked());
    EXPECT_EQ(parameter->ownValue()->Text(), "false");
}

TEST_F(QBoolTest, SurvivesTheLossOfItsCheckBox) {
    auto const parameter = makeParameter("switch", Kolt::makeValue(false));
    auto const editor = open(parameter);
    delete box(editor);
    EXPECT_TRUE(Kolt::setParameterValue(*parameter, true, firstPool, std::string(), false, nullptr, nullptr));
    EXPECT_EQ(box(editor), nullptr);
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.widget, "clicked", Q_ARG(bool, false)));
    EXPECT_EQ(parameter->ownValue()->Text(), "false");
}
