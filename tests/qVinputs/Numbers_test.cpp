#include "support/TestHost.hpp"
#include "support/WheelTurn.hpp"

#include <cmath>
#include <lattice/Object.hpp>
#include <QAbstractSlider>
#include <QLCDNumber>
#include <QLineEdit>
#include <random>
#include <sorrel/QIconizer.hpp>

namespace {

/// Several editors of one parameter, icons for the editors that have them, and random actions of a user and a host.
class NumbersTest : public PluginTest {
protected:
    void openEditors(Kolt::ParameterPtr const& edited, std::vector<std::string> const& creators) {
        parameter = edited;
        for (auto const& name : creators) {
            auto const made = qtCreator(parameter->declaredType(), name)->create(parameter, parent, &pools);
            made.first->resize(300, 80);
            made.first->show();
            // Let the layout place the controls.
            QApplication::sendPostedEvents(made.first, QEvent::LayoutRequest);
            editors.push_back(made.first);
            if (auto const iconizer = made.second.strong()->getInterface<Kolt::QIconizer>())
                icons.push_back(iconizer->createIcon(parent, object, pools.getValuePoolProvider()));
        }
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    }

    int random(int first, int last) { return std::uniform_int_distribution<int>(first, last)(generator); }
    QWidget& anyEditor() { return *editors[static_cast<std::size_t>(random(0, static_cast<int>(editors.size()) - 1))]; }

    /// Performs a random action of the user or the host. Returns the largest number of notifications that it may cause.
    std::size_t anyStep() {
        auto& editor = anyEditor();
        auto* const control = editor.findChild<QAbstractSlider*>();
        auto* const lineEdit = editor.findChild<QLineEdit*>();
        switch (random(0, 6)) {
        case 0: {
            std::array const keys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,     Qt::Key_Down,
                                  Qt::Key_Home, Qt::Key_End,   Qt::Key_1,      Qt::Key_3,
                                  Qt::Key_Plus, Qt::Key_Minus, Qt::Key_PageUp, Qt::Key_Space};
            QTest::keyClick(control, keys[static_cast<std::size_t>(random(0, static_cast<int>(keys.size()) - 1))]);
            return 1;
        }
        case 1:
            QTest::mouseClick(control, random(0, 4) != 0 ? Qt::LeftButton : Qt::MiddleButton, {},
                              {random(0, control->width() - 1), random(0, control->height() - 1)});
            return 2; // press and release
        case 2:
            turnWheel(*control, random(-2, 2));
            return 1;
        case 3:
            lineEdit->selectAll();
            QTest::keyClicks(lineEdit, QString::number(random(-500, 500)));
            if (random(0, 3) == 0)
                return 0; // typed without Return
            QTest::keyClick(lineEdit, Qt::Key_Return);
            return 2; // for the moved handle and for the number
        case 4:
            change(random(-500, 500));
            return 1;
        case 5:
            parameter->setProperty(random(0, 1) != 0 ? "min" : "max", bound(random(-300, 300)), nullptr, nullptr,
                                   firstPool);
            return 0;
        default: {
            auto& history = Kolt::UndoHistory::theHistory();
            return history.undo() ? 1 : 0;
        }
        }
    }
    virtual void change(int number) = 0;
    virtual Kolt::ValuePtr bound(int number) = 0;
    /// The text that an editor shows for the parameter's value.
    virtual QString expectedText() = 0;

    void walk(int steps) {
        for (int step = 0; step < steps && !HasFailure(); ++step) {
            SCOPED_TRACE(testing::Message() << "step " << step);
            recorder.values.clear();
            auto const most = anyStep();
            EXPECT_LE(recorder.values.size(), most);
        }
        // A text that is being typed is not replaced; Escape shows the current value.
        parameter->notifyValueChange(parameter->ownValue(), firstPool, std::string(), nullptr, nullptr, nullptr);
        for (auto const& editor : editors) {
            auto* const lineEdit = editor->findChild<QLineEdit*>();
            QTest::keyClick(lineEdit, Qt::Key_Escape);
            EXPECT_EQ(lineEdit->text(), expectedText());
        }
    }

    std::mt19937 generator{20230329};
    Kolt::ParameterPtr parameter;
    Kolt::ObjectPtr object{new Kolt::VObject("object")};
    std::vector<QPointer<QWidget>> editors;
    std::vector<Kolt::VIcon*> icons;
    RecordingNotifier recorder;
};

class IntegersTest : public NumbersTest {
protected:
    void change(int number) override {
        EXPECT_TRUE(Kolt::setParameterValue(*parameter, number, firstPool, std::string(), true, nullptr, nullptr));
    }
    Kolt::ValuePtr bound(int number) override { return Kolt::makeValue(number); }
    QString expectedText() override { return QString::fromStdString(parameter->ownValue()->Text()); }
};

class FloatingPointNumbersTest : public NumbersTest {
protected:
    void change(int number) override {
        EXPECT_TRUE(
            Kolt::setParameterValue(*parameter, number / 8.0, firstPool, std::string(), true, nullptr, nullptr));
    }
    Kolt::ValuePtr bound(int number) override { return Kolt::makeValue(number / 8.0); }
    QString expectedText() override { return QString::number(Kolt::valueOr(parameter->ownValue(), 0.0), 'f', 6); }
};

} // namespace

TEST_F(IntegersTest, AllEditorsAndTheIconEndWithWhatTheParameterHolds) {
    openEditors(makeParameter("count", Kolt::makeValue(20)), {"int", "intDial", "intDialPeriodic"});
    ASSERT_EQ(icons.size(), 3U);
    for (int round = 0; round < 20; ++round) {
        walk(100);
        for (auto* const icon : icons)
            EXPECT_EQ(dynamic_cast<QLCDNumber*>(icon->widget())->intValue(), Kolt::valueOr(parameter->ownValue(), -1));
        for (auto const& editor : {editors[0], editors[1]}) {
            auto const* const control = editor->findChild<QAbstractSlider*>();
            EXPECT_EQ(control->value(), std::max(std::min(Kolt::valueOr(parameter->ownValue(), -1), control->maximum()),
                                                 control->minimum()));
        }
    }
}

TEST_F(FloatingPointNumbersTest, AllEditorsEndWithWhatTheParameterHolds) {
    auto const real = makeParameter("scale", Kolt::makeValue(0.5));
    real->setProperty("increment", Kolt::makeValue(1000.0), nullptr, nullptr, nullptr);
    openEditors(real, {"double", "FltDial", "Periodic FltDial"});
    for (int round = 0; round < 20; ++round)
        walk(100);
}
