// The labels of a row measure their text once, and ask for the same room as a label of Qt.

#include "support/TestHost.hpp"

#include <parameters/rows/NameLabel.hpp>
#include <parameters/rows/SmallLabel.hpp>

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

} // namespace

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
