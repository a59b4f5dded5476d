#include "support/TaloTest.hpp"

#include <parameters/input/WheelGuard.hpp>
#include <QAbstractItemView>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QVBoxLayout>

namespace {

class WheelGuardTest : public TaloTest {
protected:
    WheelGuardTest() {
        auto* const content = new QWidget;
        content->setMinimumHeight(2000);
        auto* const layout = new QVBoxLayout(content);
        editor = new QWidget;
        layout->addWidget(editor, 0, Qt::AlignTop);
        other = new QSlider(Qt::Horizontal);
        layout->addWidget(other);
        editorLayout = new QVBoxLayout(editor);
        slider = new QSlider(Qt::Horizontal);
        slider->setFocusPolicy(Qt::WheelFocus);
        slider->setValue(50);
        editorLayout->addWidget(slider);
        area.setWidgetResizable(true);
        area.setWidget(content);
        area.resize(300, 200);
        new Talo::WheelGuard(editor);
        area.show();
        area.activateWindow();
    }

    void SetUp() override {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
        other->setFocus();
        ASSERT_TRUE(other->hasFocus());
    }

    void turnWheel(QWidget* control) {
        QPointF const place = control->rect().center();
        QWheelEvent event(place, control->mapToGlobal(place.toPoint()), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        // Qt gives a widget the focus only for events from the window system, before it delivers them.
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(control, &event);
    }
    int scrolled() const { return area.verticalScrollBar()->value(); }

    QScrollArea area;
    QWidget* editor;
    QVBoxLayout* editorLayout;
    QSlider* slider;
    QSlider* other;
};

} // namespace

TEST_F(WheelGuardTest, TheWheelScrollsOverAnEditorWithoutFocus) {
    turnWheel(slider);
    EXPECT_EQ(slider->value(), 50);
    EXPECT_GT(scrolled(), 0) << area.verticalScrollBar()->maximum();
    EXPECT_TRUE(other->hasFocus());
}

TEST_F(WheelGuardTest, TheWheelReachesAnEditorWithFocus) {
    slider->setFocus();
    turnWheel(slider);
    EXPECT_NE(slider->value(), 50);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(WheelGuardTest, AControlThatTheEditorGetsLaterIsGuardedToo) {
    auto* const comboBox = new QComboBox;
    comboBox->addItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    editorLayout->addWidget(comboBox);
    EXPECT_TRUE(waitUntil([&] { return comboBox->isVisible(); }));
    turnWheel(comboBox);
    EXPECT_EQ(comboBox->currentIndex(), 0);
    EXPECT_TRUE(other->hasFocus());
    comboBox->setFocus();
    turnWheel(comboBox);
    EXPECT_EQ(comboBox->currentIndex(), 1);
}

TEST_F(WheelGuardTest, TheWheelScrollsAnOpenDropDownList) {
    auto* const comboBox = new QComboBox;
    for (int number = 0; number < 100; ++number)
        comboBox->addItem(QString::number(number));
    comboBox->setMaxVisibleItems(5);
    // Makes the list a separate window below the editor.
    comboBox->setStyleSheet(QStringLiteral("combobox-popup: 0"));
    editorLayout->addWidget(comboBox);
    EXPECT_TRUE(waitUntil([&] { return comboBox->isVisible(); }));
    comboBox->showPopup();
    EXPECT_TRUE(waitUntil([&] { return comboBox->view()->isVisible(); }));
    turnWheel(comboBox->view()->viewport());
    EXPECT_GT(comboBox->view()->verticalScrollBar()->value(), 0);
    EXPECT_EQ(scrolled(), 0);
    comboBox->hidePopup();
}
