#include "support/TestHost.hpp"

#include <bramble/FlagList.hpp>
#include <bramble/Info.hpp>
#include <lattice/TypedParameter.hpp>
#include <parameters/ParameterPanel.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <parameters/rows/RowArea.hpp>
#include <QCheckBox>
#include <QLineEdit>
#include <QVBoxLayout>

using Kolt::Parameter;

namespace {

/// A panel between two fields, for an object of which most rows have nothing to go to.
class TabKeyTest : public PluginTest {
protected:
    void SetUp() override {
        PluginTest::SetUp();
        auto const object = Kolt::ObjectPtr(new Kolt::VObject("lamp"));
        for (Kolt::ParameterPtr const& each :
             {Kolt::ParameterPtr(said), Kolt::ParameterPtr(on), Kolt::ParameterPtr(empty), Kolt::ParameterPtr(saidNext),
              Kolt::ParameterPtr(steady), Kolt::ParameterPtr(emptyToo)})
            object->addParameter(each);
        kept = object;
        auto* const layout = new QVBoxLayout(parent);
        layout->addWidget(before);
        panel = new Talo::ParameterPanel(object, pools, parent);
        layout->addWidget(panel);
        layout->addWidget(after);
        parent->show();
        parent->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(parent));
    }

    QCheckBox* box(char const* name) const {
        return panel->rowArea()->row(QLatin1String(name))->editor()->findChild<QCheckBox*>();
    }
    /// Where the focus is after a key was pressed where it is.
    static QWidget* focusAfter(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        return QApplication::focusWidget();
    }

    Parameter<Kolt::info> const said{"said", Kolt::info{"A label."}};
    Parameter<bool> const on{"on", false};
    Parameter<Kolt::FlagList> const empty{"empty", Kolt::FlagList()};
    Parameter<Kolt::info> const saidNext{"said next", Kolt::info{"A label."}};
    Parameter<bool> const steady{"steady", false};
    Parameter<Kolt::FlagList> const emptyToo{"empty, too", Kolt::FlagList()};
    Kolt::ObjectPtr kept;
    QPointer<QLineEdit> before{new QLineEdit};
    QPointer<QLineEdit> after{new QLineEdit};
    QPointer<Talo::ParameterPanel> panel;
};

} // namespace

TEST_F(TabKeyTest, PassesRowsWithoutControlsInBothDirections) {
    box("on")->setFocus();
    EXPECT_EQ(focusAfter(Qt::Key_Tab), box("steady"));
    EXPECT_EQ(focusAfter(Qt::Key_Backtab), box("on"));
}

TEST_F(TabKeyTest, LeavesThePanelPastRowsWithoutControls) {
    box("steady")->setFocus();
    EXPECT_EQ(focusAfter(Qt::Key_Tab), after);
    box("on")->setFocus();
    EXPECT_EQ(focusAfter(Qt::Key_Backtab), before);
    EXPECT_EQ(focusAfter(Qt::Key_Tab), box("on"));
}

TEST_F(TabKeyTest, TheFirstControlIsThatOfTheFirstRowWithOne) {
    EXPECT_TRUE(panel->rowArea()->focusFirstControl());
    EXPECT_EQ(QApplication::focusWidget(), box("on"));
}
