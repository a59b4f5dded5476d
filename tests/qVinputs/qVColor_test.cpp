#include "support/TestHost.hpp"

#include <bramble/Color.hpp>
#include <cmath>
#include <cstring>
#include <limits>
#include <QColorDialog>
#include <QLabel>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

using Ferro::rgba_float_t;
using Kolt::ParameterPtr;
using Values = Kolt::VParameter::Values;

namespace {

class qVColorTest : public PluginTest {
protected:
    static ParameterPtr colourParameter(rgba_float_t const& colour, Values values = Values::Shared) {
        return makeParameter("picture.background", Kolt::makeValue(colour), {}, values);
    }
    static QLabel& label(Kolt::Editor const& editor) { return dynamic_cast<QLabel&>(*editor.widget); }
    static QColorDialog& dialog(Kolt::Editor const& editor) { return *editor.widget->findChild<QColorDialog*>(); }
    static void press(Kolt::Editor const& editor) { QTest::mousePress(editor.widget, Qt::LeftButton); }
    static bool choose(Kolt::Editor const& editor, QColor const& colour) {
        return QMetaObject::invokeMethod(editor.widget, "colorChange", Q_ARG(QColor, colour));
    }
    static rgba_float_t colourOf(Kolt::ValuePtr const& value) {
        return Kolt::valueOr(value, rgba_float_t{-1.0F, -1.0F, -1.0F, -1.0F});
    }
    static rgba_float_t asFloats(QColor const& colour) {
        return {static_cast<float>(colour.redF()), static_cast<float>(colour.greenF()),
                static_cast<float>(colour.blueF()), static_cast<float>(colour.alphaF())};
    }
    static bool same(rgba_float_t const& left, rgba_float_t const& right) {
        // Bit by bit, as what is no number equals nothing. NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
        return std::memcmp(&left, &right, sizeof left) == 0;
    }
    /// The colour of a role in all colour groups; an invalid colour if they differ.
    static QColor shown(Kolt::Editor const& editor, QPalette::ColorRole role) {
        auto const& palette = editor.widget->palette();
        auto const colour = palette.color(QPalette::Active, role);
        bool const everywhere =
            palette.color(QPalette::Inactive, role) == colour && palette.color(QPalette::Disabled, role) == colour;
        return everywhere ? colour : QColor();
    }
};

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();

} // namespace

TEST_F(qVColorTest, IsALabelWithOneSlotAndADialogOfItsOwn) {
    auto const editor = open(colourParameter({1.0F, 0.0F, 0.0F, 1.0F}));
    ASSERT_TRUE(editor.widget);
    auto const* const meta = editor.widget->metaObject();
    EXPECT_STREQ(meta->className(), "Kolt::qVColor");
    EXPECT_STREQ(meta->superClass()->className(), "QLabel");
    ASSERT_EQ(meta->methodCount() - meta->methodOffset(), 1);
    auto const slot = meta->method(meta->methodOffset());
    EXPECT_EQ(slot.methodType(), QMetaMethod::Slot);
    EXPECT_EQ(slot.methodSignature(), QByteArray("colorChange(QColor)"));
    EXPECT_EQ(slot.parameterNames(), QList<QByteArray>{"color"});

    ASSERT_EQ(editor.widget->findChildren<QColorDialog*>().size(), 1);
    EXPECT_STREQ(dialog(editor).metaObject()->className(), "Kolt::MyColorDialog");
    EXPECT_STREQ(dialog(editor).metaObject()->superClass()->className(), "QColorDialog");
    EXPECT_EQ(dialog(editor).parent(), editor.widget);
    EXPECT_FALSE(dialog(editor).testAttribute(Qt::WA_DeleteOnClose));
    EXPECT_TRUE(dialog(editor).testOption(QColorDialog::NoButtons));
    EXPECT_FALSE(dialog(editor).isVisible());
}

TEST_F(qVColorTest, ItsCreatorHasThePreferenceQtAlone) {
    auto const editor = open(colourParameter({}));
    auto const creator = editor.choice.creator.strong();
    EXPECT_EQ(creator->Name(), "ColorDisplay");
    EXPECT_EQ(creator->priority(), 0);
    EXPECT_EQ(creator->preferences()->names(), Kolt::VCreationPreferences::Names{"QT"});
}

TEST_F(qVColorTest, FillsAFrameWithTheColour) {
    auto const editor = open(colourParameter({0.2F, 0.4F, 0.6F, 0.25F}));
    EXPECT_TRUE(label(editor).autoFillBackground());
    EXPECT_EQ(label(editor).frameStyle(), static_cast<int>(QFrame::Box));
    EXPECT_EQ(label(editor).lineWidth(), 1);
    EXPECT_EQ(shown(editor, QPalette::Window), QColor::fromRgbF(qreal(0.2F), qreal(0.4F), qreal(0.6F), qreal(0.25F)));
    EXPECT_EQ(editor.widget->palette().brush(QPalette::Window).style(), Qt::SolidPattern);
}

TEST_F(qVColorTest, EachColourComesWithItsFrame) {
    auto const parameter = colourParameter({0.2F, 0.4F, 0.6F, 0.25F});
    auto const editor = open(parameter);
    auto* const frame = qobject_cast<QFrame*>(editor.widget);
    frame->setFrameStyle(int{QFrame::Panel} | int{QFrame::Raised});
    frame->setLineWidth(3);
    frame->setAutoFillBackground(false);
    ASSERT_TRUE(Kolt::setParameterValue(*parameter, rgba_float_t{1.0F, 0.0F, 0.0F, 1.0F}, nullptr, std::string(), false,
                                        nullptr, nullptr));
    EXPECT_TRUE(label(editor).autoFillBackground());
    EXPECT_EQ(label(editor).frameStyle(), static_cast<int>(QFrame::Box));
    EXPECT_EQ(label(editor).lineWidth(), 1);
}

TEST_F(qVColorTest, TheTextContrasts) {
    struct Row {
        rgba_float_t colour;
        QColor text;
    };
    Row const rows[] = {{{0.5F, 0.5F, 0.5F, 1.0F}, Qt::black},  {{0.5F, 0.49F, 1.0F, 1.0F}, Qt::white},
                        {{1.0F, 1.0F, 1.0F, 1.0F}, Qt::black},  {{0.0F, 0.0F, 0.0F, 1.0F}, Qt::white},
                        {{3.0F, 2.0F, 1.0F, 1.0F}, Qt::black},  {{1.0F, 1.0F, notANumber, 1.0F}, Qt::white},
                        {{0.49F, 1.0F, 1.0F, 1.0F}, Qt::white}, {{1.0F, 1.0F, 0.49F, 1.0F}, Qt::white}};
    for (auto const& [colour, text] : rows)
        EXPECT_EQ(shown(open(colourParameter(colour)), QPalette::WindowText), text)
            << Kolt::VValueTrait<rgba_float_t>::Text(colour);
}

TEST_F(qVColorTest, TheTextIsAsTransparentAsTheColour) {
    auto const editor = open(colourParameter({1.0F, 1.0F, 1.0F, 0.25F}));
    EXPECT_EQ(shown(editor, QPalette::WindowText).rgba(), qRgba(0, 0, 0, 64));
}

TEST_F(qVColorTest, TheTextIsTheAlphaValueBetweenBlanks) {
    std::pair<float, char const*> const rows[] = {{0.25F, " 0.25 "},     {1.0F, " 1.00 "},   {0.0F, " 0.00 "},
                                                  {0.999F, " 1.00 "},    {-0.5F, " -0.50 "}, {12.5F, " 12.50 "},
                                                  {notANumber, " nan "}, {infinite, " inf "}};
    for (auto const& [alpha, text] : rows)
        EXPECT_EQ(label(open(colourParameter({1.0F, 1.0F, 1.0F, alpha}))).text(), text);
}

TEST_F(qVColorTest, ChannelsBeyondTheRangeAreShownAtItsEndsAndStayInTheValue) {
    rgba_float_t const beyond{2.0F, -1.0F, notANumber, infinite};
    auto const parameter = colourParameter(beyond);
    auto const editor = open(parameter);
    EXPECT_EQ(shown(editor, QPalette::Window), QColor(255, 0, 0, 255));
    press(editor);
    EXPECT_EQ(dialog(editor).currentColor().rgba(), qRgba(255, 0, 0, 255));
    EXPECT_TRUE(same(colourOf(parameter->ownValue()), beyond));
}

TEST_F(qVColorTest, StartsWithThePoolsColour) {
    auto const parameter = colourParameter({1.0F, 0.0F, 0.0F, 1.0F}, Values::PerPool);
    dynamic_cast<Kolt::VValue<rgba_float_t>&>(*parameter->getLocalValue(firstPool, std::string(), true))
        .set({0.0F, 0.0F, 1.0F, 0.5F});
    auto const creator = qtCreator(Tessera::Typename(typeid(rgba_float_t)), "ColorDisplay");
    auto const made = creator->create(parameter, parent, &pools);
    EXPECT_EQ(made.first->palette().color(QPalette::Window), QColor::fromRgbF(0.0, 0.0, 1.0, 0.5));
    EXPECT_EQ(dynamic_cast<QLabel&>(*made.first).text(), " 0.50 ");
}

TEST_F(qVColorTest, StartsWithTheParametersOwnColourWhereThePoolHasNone) {
    auto const parameter = colourParameter({1.0F, 0.0F, 0.0F, 0.75F}, Values::PerPool);
    auto const creator = qtCreator(Tessera::Typename(typeid(rgba_float_t)), "ColorDisplay");
    auto const inPool = creator->create(parameter, parent, &pools);
    auto const withoutPools = creator->create(parameter, parent, nullptr);
    for (auto const& made : {inPool, withoutPools})
        EXPECT_EQ(made.first->palette().color(QPalette::Window), QColor::fromRgbF(1.0, 0.0, 0.0, 0.75));
    EXPECT_FALSE(parameter->getLocalValue(firstPool, std::string(), false));
}

TEST_F(qVColorTest, StartsOpaqueBlackWithoutAnyColour) {
    auto const creator = qtCreator(Tessera::Typename(typeid(rgba_float_t)), "ColorDisplay");
    auto const withoutParameter = creator->create(nullptr, parent, &pools);
    auto const number = makeParameter("count", Kolt::makeValue(3));
    auto const ofAnotherType = creator->create(number, parent, &pools);
    for (auto const& made : {withoutParameter, ofAnotherType}) {
        EXPECT_EQ(made.first->palette().color(QPalette::Window), QColor(Qt::black));
        EXPECT_EQ(made.first->palette().color(QPalette::WindowText), QColor(Qt::white));
        EXPECT_EQ(dynamic_cast<QLabel&>(*made.first).text(), " 1.00 ");
    }
}

TEST_F(qVColorTest, APressOpensTheDialogWithTheColour) {
    for (double const alpha : {1.0, 0.25, 0.0}) {
        auto const editor = open(colourParameter({0.2F, 0.4F, 0.6F, static_cast<float>(alpha)}));
        press(editor);
        EXPECT_EQ(label(editor).text(), " picking");
        EXPECT_TRUE(dialog(editor).isVisible());
        EXPECT_TRUE(dialog(editor).testOption(QColorDialog::ShowAlphaChannel));
        EXPECT_EQ(dialog(editor).currentColor().rgba(), QColor::fromRgbF(0.2, 0.4, 0.6, alpha).rgba());
    }
}

TEST_F(qVColorTest, APressIsTheLabelsAlone) {
    auto const editor = open(colourParameter({1.0F, 0.0F, 0.0F, 1.0F}));
    // A label itself ignores a press, which then goes to the widgets around it.
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(3, 3), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(editor.widget, &event);
    EXPECT_TRUE(event.isAccepted());
}

TEST_F(qVColorTest, APressRaisesTheDialogAlsoIfItIsOpenAlready) {
    struct Raises : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            count += event->type() == QEvent::ZOrderChange ? 1 : 0;
            return false;
        }
        int count = 0;
    };
    auto const editor = open(colourParameter({1.0F, 0.0F, 0.0F, 1.0F}));
    Raises raises;
    dialog(editor).installEventFilter(&raises);
    press(editor);
    EXPECT_EQ(raises.count, 1);
    press(editor);
    EXPECT_EQ(raises.count, 2);
}

TEST_F(qVColorTest, ThreePressesLeaveTheVerySameFloats) {
    rgba_float_t const fine{0.123456F, 0.654321F, 0.999999F, 0.333333F};
    auto const parameter = colourParameter(fine);
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const editor = open(parameter);
    QSignalSpy const choices(&dialog(editor), &QColorDialog::currentColorChanged);
    for (int n = 0; n < 3; ++n) {
        press(editor);
        QCoreApplication::processEvents();
        EXPECT_EQ(dialog(editor).currentColor().alpha(), 85);
        dialog(editor).close();
    }
    EXPECT_EQ(choices.count(), 0);
    EXPECT_TRUE(same(colourOf(parameter->ownValue()), fine));
    EXPECT_TRUE(recorder.values.empty());
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(qVColorTest, ThePressFollowsTheColourThatThePoolHasByThen) {
    auto const parameter = colourParameter({1.0F, 0.0F, 0.0F, 1.0F});
    auto const editor = open(parameter);
    press(editor);
    EXPECT_TRUE(Kolt::setParameterValue(*parameter, rgba_float_t{0.0F, 1.0F, 0.0F, 0.5F}, firstPool, std::string(),
                                        false, nullptr, nullptr));
    EXPECT_EQ(label(editor).text(), " 0.50 ");
    press(editor);
    EXPECT_EQ(dialog(editor).currentColor().rgba(), QColor::fromRgbF(0.0, 1.0, 0.0, 0.5).rgba());
}

TEST_F(qVColorTest, ClosingHidesTheDialogForTheNextPress) {
    auto const editor = open(colourParameter({1.0F, 0.0F, 0.0F, 1.0F}));
    QPointer<QColorDialog> const first = &dialog(editor);
    press(editor);
    ASSERT_TRUE(first->isVisible());
    QCloseEvent request;
    QCoreApplication::sendEvent(first, &request);
    EXPECT_FALSE(request.isAccepted());
    EXPECT_FALSE(first->isVisible());
    EXPECT_EQ(label(editor).text(), " picking") << "until the next value is shown";

    press(editor);
    EXPECT_TRUE(first->isVisible());
    first->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(first);
    EXPECT_FALSE(first->isVisible());
    press(editor);
    EXPECT_EQ(&dialog(editor), first);
    QTest::keyClick(first, Qt::Key_Escape);
    EXPECT_FALSE(first->isVisible());
    press(editor);
    EXPECT_TRUE(first->isVisible());
}

TEST_F(qVColorTest, EveryColourOfTheDialogIsWrittenAndShown) {
    auto const parameter = colourParameter({1.0F, 0.0F, 0.0F, 1.0F});
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const editor = open(parameter);
    press(editor);
    QSignalSpy const choices(&dialog(editor), &QColorDialog::currentColorChanged);
    for (auto const& colour : {QColor(10, 20, 30, 40), QColor(200, 210, 220, 255)}) {
        auto const before = Tessera::Ageable::GlobalTime.load();
        dialog(editor).setCurrentColor(colour);
        EXPECT_TRUE(same(colourOf(parameter->ownValue()), asFloats(colour)));
        EXPECT_EQ(recorder.values.size(), static_cast<std::size_t>(choices.count()));
        EXPECT_EQ(recorder.pools.back(), firstPool);
        EXPECT_TRUE(isStampedAfter(before, *parameter->ownValue()));
        EXPECT_EQ(shown(editor, QPalette::Window).rgba(), colour.rgba());
        EXPECT_EQ(label(editor).text(), " " + QString::number(colour.alphaF(), 'f', 2) + " ");
    }
    EXPECT_GE(choices.count(), 2);
    EXPECT_TRUE(dialog(editor).isVisible());
}

TEST_F(qVColorTest, AnInvalidColourIsIgnored) {
    auto const parameter = colourParameter({1.0F, 0.0F, 0.0F, 1.0F});
    auto const editor = open(parameter);
    ASSERT_TRUE(choose(editor, QColor()));
    EXPECT_EQ(parameter->ownValue()->Text(), "1 0 0 1");
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    // The invalid colour that was ignored is not equal to any valid colour, black included.
    ASSERT_TRUE(choose(editor, QColor(Qt::black)));
    EXPECT_EQ(parameter->ownValue()->Text(), "0 0 0 1");
}

TEST_F(qVColorTest, AChangeFromElsewhereIsNoChoice) {
    auto const parameter = colourParameter({1.0F, 0.0F, 0.0F, 1.0F});
    auto const editor = open(parameter);
    press(editor);
    QSignalSpy const choices(&dialog(editor), &QColorDialog::currentColorChanged);
    rgba_float_t const fine{0.1F, 0.2F, 0.3F, 0.4F};
    EXPECT_TRUE(Kolt::setParameterValue(*parameter, fine, firstPool, std::string(), false, nullptr, nullptr));
    EXPECT_EQ(shown(editor, QPalette::Window), QColor::fromRgbF(qreal(0.1F), qreal(0.2F), qreal(0.3F), qreal(0.4F)));
    EXPECT_EQ(choices.count(), 0);
    EXPECT_TRUE(same(colourOf(parameter->ownValue()), fine));
}

TEST_F(qVColorTest, WithoutAPoolAChoiceIsDroppedAndStaysInTheDialog) {
    auto const parameter = colourParameter({1.0F, 0.0F, 0.0F, 1.0F});
    auto const editor = open(parameter);
    pools.use(nullptr);
    press(editor);
    dialog(editor).setCurrentColor(QColor(10, 20, 30, 40));
    EXPECT_EQ(parameter->ownValue()->Text(), "1 0 0 1");
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    dialog(editor).close();
    press(editor);
    EXPECT_EQ(dialog(editor).currentColor().rgba(), qRgba(10, 20, 30, 40));
}

TEST_F(qVColorTest, ACorrectionByAListenerIsShown) {
    auto const parameter = colourParameter({1.0F, 0.0F, 0.0F, 1.0F});
    auto const editor = open(parameter);
    RecordingNotifier corrector;
    corrector.reaction = [&] {
        EXPECT_TRUE(Kolt::setParameterValue(*parameter, rgba_float_t{0.0F, 0.0F, 1.0F, 0.5F}, firstPool, std::string(),
                                            false, Tessera::WeakPtr<Kolt::ValueNotifier>(&corrector), nullptr));
    };
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&corrector));
    ASSERT_TRUE(choose(editor, QColor(10, 20, 30, 40)));
    EXPECT_EQ(parameter->ownValue()->Text(), "0 0 1 0.5");
    EXPECT_EQ(shown(editor, QPalette::Window), QColor::fromRgbF(0.0, 0.0, 1.0, 0.5));
    EXPECT_EQ(label(editor).text(), " 0.50 ");
}

TEST_F(qVColorTest, TheInputLivesExactlyAsLongAsTheLabel) {
    auto const parameter = colourParameter({1.0F, 0.0F, 0.0F, 1.0F});
    auto const editor = open(parameter);
    ASSERT_TRUE(editor.input.alive());
    EXPECT_EQ(dynamic_cast<QWidget*>(editor.input.strong().get()), nullptr) << "the input is no widget itself";
    EXPECT_EQ(parameter->size(), 1U);
    // A reference does not keep the input alive.
    auto const held = editor.input.strong();
    delete editor.widget;
    EXPECT_FALSE(held);
    EXPECT_FALSE(editor.input.alive());
    EXPECT_EQ(parameter->size(), 0U);
}

TEST_F(qVColorTest, AListenerMayDeleteTheLabelDuringAChoice) {
    auto const parameter = colourParameter({1.0F, 0.0F, 0.0F, 1.0F});
    auto const editor = open(parameter);
    RecordingNotifier recorder;
    recorder.reaction = [&] { delete parent; };
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const before = Tessera::Ageable::GlobalTime.load();
    ASSERT_TRUE(choose(editor, QColor(10, 20, 30, 40)));
    EXPECT_FALSE(editor.widget);
    EXPECT_FALSE(editor.input);
    EXPECT_TRUE(same(colourOf(parameter->ownValue()), asFloats(QColor(10, 20, 30, 40))));
    EXPECT_TRUE(isStampedAfter(before, *parameter->ownValue()));
}

TEST_F(qVColorTest, SurvivesTheLossOfItsDialog) {
    auto const parameter = colourParameter({1.0F, 0.0F, 0.0F, 1.0F});
    auto const editor = open(parameter);
    delete &dialog(editor);
    press(editor);
    EXPECT_EQ(label(editor).text(), " picking");
    EXPECT_TRUE(Kolt::setParameterValue(*parameter, rgba_float_t{0.0F, 1.0F, 0.0F, 1.0F}, firstPool, std::string(),
                                        false, nullptr, nullptr));
    EXPECT_EQ(label(editor).text(), " 1.00 ");
}
