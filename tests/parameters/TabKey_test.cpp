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

/// A panel and another field, for an object of which most rows have nothing to go to.
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
        other->setAccessibleName(QStringLiteral("other"));
        panel = new Talo::ParameterPanel(object, pools, parent);
        layout->addWidget(panel);
        layout->addWidget(other);
        parent->show();
        parent->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(parent));
    }

    QCheckBox* box(char const* name) const {
        return panel->rowArea()->row(QLatin1String(name))->editor()->findChild<QCheckBox*>();
    }
    /// The accessible name of the widget that has the focus after a key was pressed where it is.
    static std::string focusAfter(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        auto const* const focus = QApplication::focusWidget();
        return focus ? std::string(focus->metaObject()->className()) + " " + focus->accessibleName().toStdString()
                     : "nothing";
    }

    Parameter<Kolt::info> const said{"said", Kolt::info{"A label."}};
    Parameter<bool> const on{"on", false};
    Parameter<Kolt::FlagList> const empty{"empty", Kolt::FlagList()};
    Parameter<Kolt::info> const saidNext{"said next", Kolt::info{"A label."}};
    Parameter<bool> const steady{"steady", false};
    Parameter<Kolt::FlagList> const emptyToo{"empty, too", Kolt::FlagList()};
    Kolt::ObjectPtr kept;
    QPointer<QLineEdit> other{new QLineEdit};
    QPointer<Talo::ParameterPanel> panel;
};

} // namespace

TEST_F(TabKeyTest, PassesRowsWithoutControlsInBothDirections) {
    box("on")->setFocus();
    EXPECT_EQ(focusAfter(Qt::Key_Tab), "QCheckBox steady");
    EXPECT_EQ(focusAfter(Qt::Key_Backtab), "QCheckBox on");
}

TEST_F(TabKeyTest, LeavesThePanelPastRowsWithoutControls) {
    box("steady")->setFocus();
    EXPECT_EQ(focusAfter(Qt::Key_Tab), "QLineEdit other");
    box("on")->setFocus();
    EXPECT_EQ(focusAfter(Qt::Key_Backtab), "QLineEdit other");
    EXPECT_EQ(focusAfter(Qt::Key_Tab), "QCheckBox on");
}

TEST_F(TabKeyTest, TheFirstControlIsThatOfTheFirstRowWithOne) {
    EXPECT_TRUE(panel->rowArea()->focusFirstControl());
    EXPECT_EQ(QApplication::focusWidget(), box("on"));
}
