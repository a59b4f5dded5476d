// What a panel shows for the properties of parameters: labels, help, units, sections, advanced and read-only
// parameters, and conditions.

#include "parameters/FormTest.hpp"

#include <memory>
#include <parameters/commands/HelpView.hpp>
#include <parameters/rows/RawValueLabel.hpp>
#include <QCheckBox>
#include <QClipboard>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QTextDocumentFragment>
#include <QToolTip>

using Command = Talo::ParameterPanel::Command;
using Kolt::Parameter;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

class ParameterPropertiesTest : public FormTest {
protected:
    ParameterPropertiesTest() : FormTest("pump") {}

    /// The tool tip of a row's label.
    std::string toolTip(char const* name) const {
        auto* const label = row(name)->nameLabel();
        QHelpEvent event(QEvent::ToolTip, label->mapTo(row(name), QPoint(3, 3)), label->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(row(name), &event);
        auto const text = QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText().toStdString();
        QToolTip::hideText();
        waitUntil([] { return !QToolTip::isVisible(); });
        return text;
    }
    static void setProperty(Kolt::ParameterPtr const& parameter, char const* name, Kolt::ValuePtr const& value) {
        parameter->setProperty(name, value, nullptr, nullptr, nullptr);
    }
};

} // namespace

TEST_F(ParameterPropertiesTest, TheLabelIsShownInsteadOfTheName) {
    auto const speed = Parameter<int>("motor.rpm", 40).min(0).max(100).label("Speed & more");
    add(speed);
    show();
    EXPECT_EQ(row("motor.rpm")->nameLabel()->text(), QStringLiteral("Speed && more")) << "no mark of a shortcut";
    EXPECT_EQ(control<QSlider>("motor.rpm")->accessibleName(), QStringLiteral("Speed & more"));
    EXPECT_THAT(toolTip("motor.rpm"), testing::StartsWith("Speed & more (motor.rpm)"));
    setProperty(speed, "label", Kolt::makeValue(std::string("Velocity")));
    EXPECT_EQ(row("motor.rpm")->nameLabel()->text(), QStringLiteral("Velocity"));
    setProperty(speed, "label", nullptr);
    EXPECT_EQ(row("motor.rpm")->nameLabel()->text(), QStringLiteral("rpm"));
}

TEST_F(ParameterPropertiesTest, TheToolTipIsForPeopleAndTheRawValueForProgrammers) {
    auto const speed = Parameter<int>("rpm", 40).min(0).max(100).label("Speed").unit("1/min").help(
        "How fast it turns.<br>See <a href='https://example.org'>the <b>manual</b></a>.");
    add(speed);
    show();
    auto const text = toolTip("rpm");
    EXPECT_THAT(text, HasSubstr("How fast it turns.\nSee the manual."));
    EXPECT_THAT(text, HasSubstr("Range: 0 to 100 1/min"));
    EXPECT_THAT(text, HasSubstr("Ctrl+D: Reset to default"));
    EXPECT_THAT(text, Not(HasSubstr("Editor:")));
    panel->setRawValuesShown(true);
    auto const explanation =
        QTextDocumentFragment::fromHtml(row("rpm")->rawValue()->toolTip()).toPlainText().toStdString();
    EXPECT_THAT(explanation, testing::StartsWith("40\n"));
    EXPECT_THAT(explanation, HasSubstr("Type: int\nPreferences: "));
    EXPECT_THAT(explanation, HasSubstr("Editor: "));
}

TEST_F(ParameterPropertiesTest, ARangeThatTheEditorFilledInIsNotMentioned) {
    add(Parameter<double>("factor", 2.5).unit("m"));
    show();
    EXPECT_THAT(toolTip("factor"), HasSubstr("Unit: m"));
    EXPECT_THAT(toolTip("factor"), Not(HasSubstr("Range:")));
}

TEST_F(ParameterPropertiesTest, TheUnitIsBehindTheEditor) {
    auto const speed = Parameter<int>("rpm", 40).min(0).max(100).unit("<b>rpm</b>");
    add(speed);
    add(Parameter<std::string>("name", "pump").unit("text"));
    auto const power = makeParameter("power", Kolt::makeValue(3), {"dial"});
    setProperty(power, "unit", Kolt::makeValue(std::string("kW")));
    add(power);
    show();
    for (auto const direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        panel->setLayoutDirection(direction);
        QCoreApplication::processEvents();
        for (auto const* const name : {"rpm", "name", "power"}) {
            auto const editor = row(name)->editor()->geometry();
            auto const unit = row(name)->unitLabel()->geometry();
            EXPECT_TRUE(row(name)->unitLabel()->isVisible());
            int const distance =
                direction == Qt::LeftToRight ? unit.left() - editor.right() : editor.left() - unit.right();
            EXPECT_GT(distance, 0) << name;
            EXPECT_LT(distance, 30) << name;
            EXPECT_GE(unit.width(), row(name)->unitLabel()->sizeHint().width()) << name;
        }
    }
    EXPECT_EQ(row("rpm")->unitLabel()->textFormat(), Qt::PlainText);
    setProperty(speed, "unit", Kolt::makeValue(std::string("Hz")));
    EXPECT_EQ(row("rpm")->unitLabel()->text(), QStringLiteral("Hz"));
    setProperty(speed, "unit", nullptr);
    EXPECT_EQ(row("rpm")->unitLabel(), nullptr);
    panel->closeEditors();
    EXPECT_EQ(row("name")->unitLabel(), nullptr);
    panel->openEditors();
    EXPECT_EQ(row("name")->unitLabel()->text(), QStringLiteral("text"));
}

TEST_F(ParameterPropertiesTest, TheGroupIsTheTitleOfTheSection) {
    add(Parameter<int>("one").property("group", "Motor"));
    add(Parameter<int>("Motor.two"));
    add(Parameter<int>("Motor.three").property("group", "Housing"));
    add(Parameter<int>("four"));
    show();
    std::map<std::string, std::vector<std::string>> sections;
    for (auto* const each : panel->rowArea()->rows()) {
        auto* const box = qobject_cast<QGroupBox*>(each->parentWidget());
        sections[box->title().toStdString()].push_back(each->parameterName().toStdString());
    }
    EXPECT_THAT(sections, ElementsAre(testing::Pair("", ElementsAre("four")),
                                      testing::Pair("Housing", ElementsAre("Motor.three")),
                                      testing::Pair("Motor", ElementsAre("one", "Motor.two"))));
}

TEST_F(ParameterPropertiesTest, AdvancedParametersAreShownOnDemandOrWhenTheFilterFindsThem) {
    add(Parameter<int>("plain"));
    add(Parameter<int>("special").property("advanced", true));
    show();
    EXPECT_THAT(shownRows(), ElementsAre("plain"));
    panel->setFilter("spec");
    EXPECT_THAT(shownRows(), ElementsAre("special"));
    panel->setFilter("");
    QSignalSpy const changed(panel, &Talo::ParameterPanel::advancedShownChanged);
    panel->setAdvancedShown(true);
    EXPECT_EQ(changed.size(), 1);
    EXPECT_THAT(shownRows(), ElementsAre("plain", "special"));
    panel->setAdvancedShown(false);
    EXPECT_THAT(shownRows(), ElementsAre("plain"));
}

TEST_F(ParameterPropertiesTest, OnlyChangedShowsWhatDiffersFromItsDefaultAdvancedOrNot) {
    Parameter<int> const speed("speed", 3);
    auto const secret = Parameter<int>("secret", 1).property("advanced", true);
    add(speed);
    add(Parameter<int>("pressure", 1));
    add(secret);
    show();
    panel->setOnlyChanged(true);
    EXPECT_THAT(shownRows(), IsEmpty());
    EXPECT_TRUE(speed.write(4));
    EXPECT_TRUE(secret.write(2));
    // What differs is looked at when it is asked for.
    EXPECT_THAT(shownRows(), IsEmpty());
    panel->setOnlyChanged(true);
    EXPECT_THAT(shownRows(), ElementsAre("speed", "secret"));
    QSignalSpy const changes(panel, &Talo::ParameterPanel::onlyChangedChanged);
    panel->setOnlyChanged(false);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_THAT(shownRows(), ElementsAre("speed", "pressure"));
}

TEST_F(ParameterPropertiesTest, TheFilterFindsTheKindOfTheObject) {
    add(Parameter<int>("speed", 3));
    show();
    panel->setFilter(QStringLiteral("machine"));
    EXPECT_THAT(shownRows(), IsEmpty());
    panel->setKind(QStringLiteral("Machine"));
    EXPECT_THAT(shownRows(), ElementsAre("speed"));
}

TEST_F(ParameterPropertiesTest, AFormOfAdvancedParametersSaysWhyItIsEmpty) {
    add(Parameter<int>("special").property("advanced", true));
    show();
    auto const* const note = panel->findChild<QLabel*>("emptyNote");
    EXPECT_TRUE(note->isVisible());
    EXPECT_THAT(note->text().toStdString(), HasSubstr("advanced"));
    panel->setFilter("nothing like it");
    EXPECT_THAT(note->text().toStdString(), HasSubstr("filter"));
    panel->setFilter("");
    panel->setAdvancedShown(true);
    EXPECT_FALSE(note->isVisible());
    EXPECT_THAT(shownRows(), ElementsAre("special"));
}

TEST_F(ParameterPropertiesTest, TheFilterFindsLabelsAndHelp) {
    add(Parameter<int>("rpm").label("Speed"));
    add(Parameter<int>("dia").help("The width of the shaft."));
    show();
    panel->setFilter("speed");
    EXPECT_THAT(shownRows(), ElementsAre("rpm"));
    panel->setFilter("shaft width");
    EXPECT_THAT(shownRows(), ElementsAre("dia"));
}

TEST_F(ParameterPropertiesTest, AReadOnlyParameterIsShownAndNotEdited) {
    auto const speed = Parameter<int>("rpm", 40).min(0).max(100).property("readOnly", true);
    add(speed);
    show();
    EXPECT_FALSE(control<QSlider>("rpm")->isEnabled());
    EXPECT_THAT(toolTip("rpm"), Not(HasSubstr("Ctrl+D")));
    ASSERT_TRUE(speed.write(50));
    EXPECT_EQ(control<QSlider>("rpm")->value(), 50) << "the host may";
    QSignalSpy const refused(panel, &Talo::ParameterPanel::refused);
    row("rpm")->resetToDefault();
    row("rpm")->copyValue();
    ASSERT_TRUE(speed.write(60));
    row("rpm")->pasteValue();
    EXPECT_EQ(refused.size(), 2);
    EXPECT_EQ(refused.at(0).at(0).toString(), QStringLiteral("rpm cannot be changed here."));
    panel->action(Command::ResetAll)->trigger();
    EXPECT_EQ(speed.read(), 60);
    EXPECT_THAT(history.steps(), IsEmpty());
    setProperty(speed, "readOnly", nullptr);
    EXPECT_TRUE(control<QSlider>("rpm")->isEnabled());
    row("rpm")->resetToDefault();
    EXPECT_EQ(speed.read(), 40);
}

TEST_F(ParameterPropertiesTest, F1AsksForTheHelpWhichLoadsNothing) {
    auto const speed = Parameter<int>("rpm", 40)
                           .min(0)
                           .max(100)
                           .label("Speed & more")
                           .help("See <a href=\"file:///etc/passwd\">the manual</a>.<img src=\"/etc/picture.png\">");
    add(speed);
    add(Parameter<bool>("on", false));
    show();
    panel->action(Command::ShowHelp);
    auto const requested = std::make_shared<std::vector<Kolt::ParameterPtr>>();
    QObject::connect(panel, &Talo::ParameterPanel::helpRequested, panel,
                     [requested](auto const& parameter) { requested->push_back(parameter); });
    control<QCheckBox>("on")->setFocus();
    QTest::keyClick(control<QCheckBox>("on"), Qt::Key_F1);
    EXPECT_EQ(requested->size(), 0U) << "it has no help";
    control<QSlider>("rpm")->setFocus();
    QTest::keyClick(control<QSlider>("rpm"), Qt::Key_F1);
    ASSERT_EQ(requested->size(), 1U);

    auto* const view = new Talo::HelpView(parent);
    view->setGeometry(0, 0, 400, 300);
    view->show();
    view->showHelp(*requested->front());
    EXPECT_EQ(view->toPlainText(), QStringLiteral("Speed & more\nSee the manual."));
    auto const before = view->toHtml();
    QSignalSpy const clicked(view, &QTextBrowser::anchorClicked);
    auto const place = view->cursorRect(view->document()->find("manual")).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place - QPoint(3, 0));
    EXPECT_EQ(clicked.size(), 1) << "there is a link";
    EXPECT_EQ(view->toHtml(), before);
}

TEST_F(ParameterPropertiesTest, ConditionsFollowTheOtherParameter) {
    auto const on = Parameter<bool>("on", false);
    add(on);
    add(Parameter<int>("rpm").property("visibleWhen", "on=true"));
    add(Parameter<int>("gear").property("enabledWhen", "rpm=2|3"));
    auto const rpm = object->findParameter("rpm");
    show();
    EXPECT_THAT(shownRows(), ElementsAre("on", "gear"));
    EXPECT_FALSE(row("gear")->editor()->isEnabled());
    QTest::mouseClick(control<QCheckBox>("on"), Qt::LeftButton, {}, {8, control<QCheckBox>("on")->height() / 2});
    EXPECT_TRUE(waitUntil([&] { return shownRows() == std::vector<std::string>{"on", "rpm", "gear"}; }));
    ASSERT_TRUE(Kolt::setParameterValue(*rpm, 3, nullptr, std::string(), true, nullptr, nullptr));
    EXPECT_TRUE(waitUntil([&] { return row("gear")->editor()->isEnabled(); }));
    history.undo();
    EXPECT_TRUE(waitUntil([&] { return shownRows() == std::vector<std::string>{"on", "gear"}; }));
    panel->setFilter("rpm");
    EXPECT_THAT(shownRows(), IsEmpty()) << "the filter does not show what is of no use";
}

TEST_F(ParameterPropertiesTest, AnEditedParameterStaysWhenAConditionChangesWhileTheFilterStands) {
    add(Parameter<bool>("on", true));
    add(Parameter<int>("rpm").property("visibleWhen", "on=false"));
    show();
    panel->setFilter("true");
    EXPECT_THAT(shownRows(), ElementsAre("on"));
    QTest::mouseClick(control<QCheckBox>("on"), Qt::LeftButton, {}, {8, control<QCheckBox>("on")->height() / 2});
    ASSERT_FALSE(Kolt::valueOr(object->findParameter("on")->ownValue(), true));
    // The condition is looked at after the event.
    QCoreApplication::processEvents();
    EXPECT_THAT(shownRows(), ElementsAre("on")) << "its value is no longer the word of the filter";
    panel->setFilter("true");
    EXPECT_THAT(shownRows(), IsEmpty());
}

TEST_F(ParameterPropertiesTest, ConditionsAreThoseOfTheChosenPool) {
    auto const mode = makeParameter("mode", Kolt::makeValue(1), {}, Kolt::VParameter::Values::PerPool);
    mode->getLocalValue(secondPool, std::string(), true)->setValueFromText("2");
    add(mode);
    add(Parameter<int>("depth").property("visibleWhen", "mode=2"));
    show();
    EXPECT_THAT(shownRows(), ElementsAre("mode"));
    pools.use(secondPool);
    panel->showPool();
    EXPECT_THAT(shownRows(), ElementsAre("mode", "depth"));
}

TEST_F(ParameterPropertiesTest, AConditionOnAMissingOrDeletedParameterHolds) {
    add(Parameter<bool>("on", false));
    add(Parameter<int>("rpm").property("visibleWhen", "on=true"));
    add(Parameter<int>("gear").property("visibleWhen", "nothing=1"));
    show();
    EXPECT_THAT(shownRows(), ElementsAre("on", "gear"));
    object->removeParameter(object->findParameter("on"));
    panel->showPool();
    EXPECT_THAT(shownRows(), testing::Contains("rpm"));
}
