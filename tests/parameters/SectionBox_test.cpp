// The box of a section is painted as the style paints it, and quickly where only a value in it changed.

#include "parameters/FormTest.hpp"

#include <parameters/rows/SectionBox.hpp>
#include <QCheckBox>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionGroupBox>

using Kolt::Parameter;

namespace {

class Box : public Talo::SectionBox {
public:
    using SectionBox::SectionBox;
    QStyleOptionGroupBox option() const {
        QStyleOptionGroupBox option;
        initStyleOption(&option);
        return option;
    }
};

QImage background(QSize const& size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(90, 140, 200));
    return image;
}

/// What the style itself paints for the frame.
QImage framePainted(Box const& box) {
    auto image = background(box.size());
    QPainter painter(&image);
    auto option = box.option();
    option.subControls = QStyle::SC_GroupBoxFrame;
    box.style()->drawComplexControl(QStyle::CC_GroupBox, &option, &painter, &box);
    return image;
}

/// What the box paints where a part of it is exposed.
QImage boxPainted(Box& box, QRect const& exposed) {
    auto image = background(box.size());
    QPainter painter(&image);
    box.render(&painter, exposed.topLeft(), exposed, {});
    return image.copy(exposed);
}

/// What the box paints where some parts of it are exposed at once.
QImage boxPainted(Box& box, QRegion const& exposed) {
    auto image = background(box.size());
    QPainter painter(&image);
    box.render(&painter, exposed.boundingRect().topLeft(), exposed, {});
    return image;
}

class SectionBoxTest : public TaloTest {};

/// Counts the frames that are painted.
class CountingStyle : public QProxyStyle {
public:
    void drawComplexControl(ComplexControl control, QStyleOptionComplex const* option, QPainter* painter,
                            QWidget const* widget) const override {
        frames += control == CC_GroupBox ? 1 : 0;
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
    mutable int frames = 0;
};

class SectionOfAForm : public FormTest {
protected:
    SectionOfAForm() : FormTest("pump") {}
};

} // namespace

TEST_F(SectionBoxTest, EveryPartIsPaintedAsByTheStyle) {
    for (QSize const size : {QSize(300, 90), QSize(500, 400), QSize(120, 60), QSize(700, 5000)}) {
        Box box{QString()};
        box.resize(size);
        auto const whole = framePainted(box);
        auto const inside = box.contentsRect();
        for (QRect const& exposed :
             {box.rect(), inside, QRect(0, inside.center().y(), size.width(), 7),
              QRect(0, inside.top(), 9, inside.height()), QRect(inside.right() - 3, inside.center().y(), 20, 5),
              QRect(0, 0, size.width(), inside.top()), QRect(20, size.height() - 9, 30, 9),
              QRect(inside.topLeft(), QSize(5, 5))}) {
            auto const part = exposed & box.rect();
            EXPECT_EQ(boxPainted(box, part), whole.copy(part))
                << size.width() << "x" << size.height() << ", " << part.x() << " " << part.y() << " " << part.width()
                << " " << part.height();
        }
    }
}

TEST_F(SectionBoxTest, PartsThatAreExposedAtOnceArePaintedOnce) {
    Box box{QString()};
    box.resize(500, 900);
    auto const whole = framePainted(box);
    auto const inside = box.contentsRect();
    QRegion edges(0, inside.top(), 2, inside.height() - 1);
    edges += QRect(4, inside.top() + 30, 3, 400);
    edges += QRect(box.width() - 3, inside.top() + 7, 3, 500);
    QRegion far(inside.center().x(), inside.center().y(), 40, 40);
    far += QRect(0, 0, 20, 4);
    far += QRect(box.width() - 12, box.height() - 5, 12, 5);
    for (auto const& exposed : {edges, far, edges + far}) {
        auto const painted = boxPainted(box, exposed);
        for (auto const& part : exposed)
            EXPECT_EQ(painted.copy(part), whole.copy(part)) << part.x() << " " << part.y();
    }
}

TEST_F(SectionBoxTest, OnAFilledBackgroundItLooksAsTheStylePaintsIt) {
    QWidget content;
    content.setAutoFillBackground(true);
    content.resize(320, 240);
    Box box(QString(), &content);
    box.setGeometry(10, 10, 300, 200);
    auto const expected = [&] {
        QImage image(content.size(), QImage::Format_RGB32);
        image.fill(content.palette().color(content.backgroundRole()));
        QPainter painter(&image);
        painter.translate(box.pos());
        auto option = box.option();
        option.subControls = QStyle::SC_GroupBoxFrame;
        box.style()->drawComplexControl(QStyle::CC_GroupBox, &option, &painter, &box);
        return image;
    };
    auto const isAsExpected = [&] {
        return content.grab().toImage().convertToFormat(QImage::Format_RGB32) == expected();
    };
    EXPECT_TRUE(isAsExpected());
    for (QColor const& colour : {QColor(255, 255, 255), QColor(40, 42, 46), QColor(200, 90, 17)}) {
        auto palette = content.palette();
        palette.setColor(QPalette::Window, colour);
        content.setPalette(palette);
        EXPECT_TRUE(isAsExpected()) << colour.name().toStdString();
    }
    // Folded, nothing of the frame is painted, and nothing is left of it.
    box.setFolded(true);
    auto folded = content.grab().toImage();
    EXPECT_EQ(folded.pixelColor(box.geometry().center()), content.palette().color(QPalette::Window));
    EXPECT_EQ(folded.pixelColor(box.pos()), content.palette().color(QPalette::Window));
    box.setFolded(false);
    EXPECT_TRUE(isAsExpected());
    // On a picture the inside stays translucent.
    auto palette = content.palette();
    QPixmap tile(2, 2);
    tile.fill(Qt::red);
    QPainter(&tile).fillRect(0, 0, 1, 2, Qt::blue);
    palette.setBrush(QPalette::Window, tile);
    content.setPalette(palette);
    auto const image = content.grab().toImage();
    EXPECT_NE(image.pixelColor(100, 100), image.pixelColor(101, 100));
}

TEST_F(SectionBoxTest, FollowsThePaletteAndTheState) {
    Box box{QString()};
    box.resize(300, 200);
    QRect const part(box.contentsRect().center(), QSize(10, 10));
    (void)boxPainted(box, part);
    auto dark = box.palette();
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    dark.setColor(QPalette::Base, Qt::black);
    box.setPalette(dark);
    EXPECT_EQ(boxPainted(box, part), framePainted(box).copy(part));
    box.setEnabled(false);
    EXPECT_EQ(boxPainted(box, part), framePainted(box).copy(part));
}

TEST_F(SectionOfAForm, AChangeOfAValuePaintsNoFrame) {
    CountingStyle style;
    add(Parameter<bool>("Motor.on", false));
    add(Parameter<std::string>("Motor.name", "one"));
    ASSERT_NO_FATAL_FAILURE(show());
    auto* const box = area()->findChild<Talo::SectionBox*>();
    box->setStyle(&style);
    box->repaint();
    QCoreApplication::processEvents();
    EXPECT_GT(style.frames, 0);
    auto* const on = control<QCheckBox>("Motor.on");
    // The first edit shows the mark of a changed value and the outline of the focus.
    QTest::mouseClick(on, Qt::LeftButton);
    QCoreApplication::processEvents();
    style.frames = 0;
    QTest::mouseClick(on, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(style.frames, 0);
    box->setStyle(nullptr);
}
