// The labels of a row measure their text once, and ask for the same room as a label of Qt. RowName places them.

#include "support/TestHost.hpp"

#include <parameters/rows/NameLabel.hpp>
#include <parameters/rows/RowName.hpp>
#include <parameters/rows/SmallLabel.hpp>
#include <QHBoxLayout>

namespace {

std::vector<QString> const texts{"",
                                 "width",
                                 "a & b",
                                 "&&",
                                 "two\nlines",
                                 "a tab\tin it",
                                 "Größe 漢字 – ﬁ",
                                 "end\n",
                                 "in pool a",
                                 " ",
                                 QString("one") + QChar(QChar::LineSeparator) + "two"};

class RowLabelsTest : public TaloTest {
protected:
    /// Expects that a label asks for the room that one of Qt asks for with the same text.
    void expectRoomOf(QLabel const& label) {
        QLabel plain;
        plain.setTextFormat(Qt::PlainText);
        plain.setAlignment(label.alignment());
        plain.setFont(label.font());
        plain.setMinimumSize(label.minimumSize());
        plain.setBuddy(label.buddy());
        // One that never had a text is not yet one for texts.
        plain.setText("text");
        plain.setText(label.text());
        EXPECT_EQ(label.sizeHint(), plain.sizeHint()) << label.text().toStdString();
        EXPECT_EQ(label.minimumSizeHint(), plain.minimumSizeHint()) << label.text().toStdString();
    }
};

/// A row that has only a name; pixels.
class RowNameTest : public TaloTest {
protected:
    static constexpr int margins = 8;
    static constexpr int distance = 2;
    static constexpr int vectorDistance = 12;

    RowNameTest() {
        auto* const layout = new QHBoxLayout(&row);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addItem(name);
        layout->addStretch();
        name->setName(QStringLiteral("speed"));
        row.resize(400, 100);
    }
    void arrange() { row.layout()->activate(); }
    QSize text() const { return name->label()->sizeHint(); }
    int side() const { return name->indicator()->sizeHint().width(); }
    QLabel* noteLabel() const {
        for (auto* const label : row.findChildren<QLabel*>())
            if (label->text() == name->note())
                return label;
        return nullptr;
    }

    QWidget row;
    Talo::RowName* const name = new Talo::RowName(row);
};

} // namespace

TEST_F(RowNameTest, AsksForItsTextTheRoomOfADotAndALineBelow) {
    EXPECT_EQ(name->sizeHint(), QSize(text().width(), text().height() + margins));
    name->setDefault(QStringLiteral("speed"), QStringLiteral("1"));
    QSize const withDot(text().width() + distance + side(), qMax(text().height(), side()) + margins);
    EXPECT_EQ(name->sizeHint(), withDot);
    name->showModified();
    EXPECT_EQ(name->sizeHint(), withDot);
    name->setNote(QStringLiteral("a note that is longer than the name"));
    auto const note = noteLabel()->sizeHint();
    EXPECT_EQ(name->sizeHint(), QSize(note.width(), withDot.height() + note.height()));
    name->setColumnWidth(150);
    EXPECT_EQ(name->sizeHint(), QSize(150, withDot.height() + note.height()));
    EXPECT_EQ(name->maximumSize().width(), 150);
    name->setNote(QString());
    EXPECT_EQ(name->sizeHint(), QSize(150, withDot.height()));
}

TEST_F(RowNameTest, PutsTheDotBehindTheNameAndTheNoteBelowInTheMiddleOrAbove) {
    name->setColumnWidth(150);
    arrange();
    int const alone = text().height();
    EXPECT_EQ(name->label()->geometry(), QRect(0, (100 - alone) / 2, 150, alone));
    name->setDefault(QStringLiteral("speed"), QStringLiteral("1"));
    name->setNote(QStringLiteral("note"));
    int const line = qMax(text().height(), side());
    int const note = noteLabel()->sizeHint().height();
    for (auto const alignment : {Qt::AlignVCenter, Qt::AlignTop}) {
        name->setAlignment(Qt::AlignLeft | alignment);
        row.layout()->invalidate();
        arrange();
        int const top = alignment == Qt::AlignTop ? margins / 2 : (100 - line - note) / 2;
        EXPECT_EQ(name->label()->geometry(), QRect(0, top, text().width(), line));
        EXPECT_EQ(name->indicator()->geometry(),
                  QRect(text().width() + distance, top + (line - side()) / 2, side(), side()));
        EXPECT_EQ(noteLabel()->geometry(), QRect(0, top + line, 150, note));
    }
    auto const dot = name->indicator()->geometry();
    row.setLayoutDirection(Qt::RightToLeft);
    arrange();
    EXPECT_EQ(name->label()->geometry().right(), 399);
    EXPECT_EQ(name->indicator()->geometry().right(), 399 - dot.left());
}

TEST_F(RowNameTest, OfAComponentIsBehindTheNameOfTheVectorAndKeepsRoomForADot) {
    name->setComponent(QStringLiteral("x"), QStringLiteral("origin"));
    name->setColumnWidth(100);
    arrange();
    EXPECT_EQ(name->vectorLabel()->geometry().left(), 0);
    EXPECT_EQ(name->vectorLabel()->width(), 100 + vectorDistance - distance);
    EXPECT_EQ(name->label()->geometry().left(), 100 + vectorDistance);
    EXPECT_EQ(name->label()->width(), text().width());
    int const before = name->sizeHint().width();
    name->setDefault(QStringLiteral("x"), QStringLiteral("1"));
    EXPECT_EQ(name->sizeHint().width(), before);
    EXPECT_EQ(before, 100 + vectorDistance + text().width() + distance + side());
    name->setComponent(QStringLiteral("x"), QString());
    EXPECT_EQ(name->vectorLabel(), nullptr);
    EXPECT_EQ(name->sizeHint().width(), text().width() + distance + side());
}

TEST_F(RowLabelsTest, ANameAsksForTheRoomOfALabel) {
    QWidget buddy;
    Talo::NameLabel label;
    label.setName("text");
    for (auto* const named : {static_cast<QWidget*>(nullptr), &buddy})
        for (int const size : {9, 31}) {
            label.setBuddy(named);
            auto font = label.font();
            font.setPointSize(size);
            label.setFont(font);
            for (auto const& text : texts)
                for (int const width : {QWIDGETSIZE_MAX, 40, 300}) {
                    label.setName(text);
                    label.shortenTo(width);
                    expectRoomOf(label);
                }
        }
    label.setName("width");
    label.setMinimumSize(500, 90);
    expectRoomOf(label);
}

TEST_F(RowLabelsTest, ANoteAsksForTheRoomOfALabel) {
    Talo::SmallLabel label;
    label.setText("text");
    for (int const size : {9, 31}) {
        auto font = label.font();
        font.setPointSize(size);
        label.setFont(font);
        for (auto const& text : texts) {
            label.setText(text);
            expectRoomOf(label);
        }
    }
    label.setMinimumSize(500, 90);
    expectRoomOf(label);
}

TEST_F(RowLabelsTest, ANoteIsPaintedAsALabel) {
    for (auto const& text : {"in pool a", "שלום", "a & b", "two\nlines"})
        for (bool const enabled : {true, false}) {
            Talo::SmallLabel label;
            label.setText(text);
            label.setEnabled(enabled);
            label.resize(label.sizeHint() + QSize(30, 10));
            QLabel plain;
            plain.setTextFormat(Qt::PlainText);
            plain.setAlignment(label.alignment());
            plain.setFont(label.font());
            plain.setPalette(label.palette());
            plain.setText(text);
            plain.setEnabled(enabled);
            plain.resize(label.size());
            auto const painted = label.grab().toImage();
            EXPECT_EQ(painted, plain.grab().toImage()) << text;
            label.setText(QString());
            EXPECT_NE(painted, label.grab().toImage()) << text;
        }
}
