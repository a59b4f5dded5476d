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

/// Paints only what the style paints for the frame.
class PlainBox : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QStyleOptionGroupBox option;
        initStyleOption(&option);
        option.subControls = QStyle::SC_GroupBoxFrame;
        style()->drawComplexControl(QStyle::CC_GroupBox, &option, &painter, this);
    }
};

/// Paints the background of widgets that ask the style for it.
class RedBackground : public QProxyStyle {
public:
    void drawPrimitive(PrimitiveElement element, QStyleOption const* option, QPainter* painter,
                       QWidget const* widget) const override {
        if (element == PE_Widget)
            painter->fillRect(option->rect, Qt::red);
        else
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
};

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
    EXPECT_TRUE(box.testAttribute(Qt::WA_OpaquePaintEvent)) << "Qt need not paint the background behind it";
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

TEST_F(SectionBoxTest, ShowsWhatItsParentLetsThroughOrHasPainted) {
    RedBackground red;
    auto const painted = [](QGroupBox* box, std::function<void(QWidget&)> const& prepare) {
        QWidget behind;
        behind.setPalette(QPalette(Qt::blue));
        behind.resize(320, 240);
        auto* const content = new QWidget(&behind);
        content->resize(behind.size());
        content->setPalette(QPalette(Qt::gray));
        box->setParent(content);
        box->setGeometry(10, 10, 300, 200);
        prepare(*content);
        return behind.grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    auto const expectAsPainted = [&](std::function<void(QWidget&)> const& prepare, char const* what) {
        EXPECT_EQ(painted(new Box(QString()), prepare), painted(new PlainBox, prepare)) << what;
    };
    expectAsPainted([](QWidget&) {}, "a parent that is not filled");
    expectAsPainted(
        [](QWidget& parent) {
            parent.setAutoFillBackground(true);
            auto* const box = parent.findChild<QGroupBox*>();
            box->setAutoFillBackground(true);
            box->setPalette(QPalette(Qt::green));
        },
        "a background of its own");
    expectAsPainted(
        [&](QWidget& parent) {
            parent.setAutoFillBackground(true);
            parent.setAttribute(Qt::WA_StyledBackground);
            parent.setStyle(&red);
        },
        "a background of the style");
    for (auto const* const sheet :
         {"QLabel { color: red; }", "* { background: red; }", "QGroupBox { background: red; margin: 20px; }",
          "* { background: qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 red, stop:1 blue); }",
          "QWidget { border: 3px solid green; border-radius: 40px; background: yellow; }",
          "QGroupBox { border: 2px solid rgba(255,0,0,100); border-radius: 20px; }"})
        expectAsPainted(
            [&](QWidget& parent) {
                parent.setAutoFillBackground(true);
                parent.setStyleSheet(QString::fromLatin1(sheet));
            },
            sheet);
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
