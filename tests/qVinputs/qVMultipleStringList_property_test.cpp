#include "MultipleSelectionTest.hpp"

#include <QRegularExpression>
#include <QScrollBar>
#include <random>

namespace {

using Kolt::MultipleStringSelection;

/// A reference implementation of the editor's actions: row by row on its own list widget, without regard to speed.
class RowByRow {
public:
    explicit RowByRow(Kolt::VMultipleStringList const& selection) : selection_(selection) {
        list_.setSelectionMode(QAbstractItemView::MultiSelection);
        list_.setMovement(QListView::Static);
        fill();
    }
    /// Takes the size and scroll position of another list, so that the mouse finds the same rows at the same places.
    void imitate(QListWidget const& other) {
        list_.setAttribute(Qt::WA_DontShowOnScreen);
        list_.resize(other.size());
        list_.show();
        list_.doItemsLayout();
        list_.verticalScrollBar()->setValue(other.verticalScrollBar()->value());
    }

    void fill() {
        list_.clear();
        int width = 0;
        int row = 0;
        QListWidgetItem* last = nullptr;
        for (auto const& string : *selection_) {
            auto const text = QString::fromStdString(string);
            width = std::max(width, list_.fontMetrics().horizontalAdvance(text) * 15 / 10);
            auto* const item = new QListWidgetItem(text);
            list_.insertItem(row++, item);
            if (selection_->isInSelection(string)) {
                item->setSelected(true);
                last = item;
            }
        }
        size_ = QSize(std::max(width, list_.sizeHint().width()), static_cast<int>(list_.sizeHint().height() * 1.3));
        if (last)
            list_.setCurrentItem(last, QItemSelectionModel::NoUpdate);
    }
    void all() {
        for (int row = 0; row < list_.count(); ++row)
            list_.item(row)->setSelected(true);
        selection_->addAll();
    }
    void none() {
        for (auto* const item : list_.selectedItems())
            item->setSelected(false);
        selection_->removeAll();
    }
    void inverse() {
        for (int row = 0; row < list_.count(); ++row)
            list_.item(row)->setSelected(!list_.item(row)->isSelected());
        selection_->invertAll();
    }
    void click(int clicked) {
        list_.item(clicked)->setSelected(!list_.item(clicked)->isSelected());
        selection_->removeAll();
        for (auto const* const item : list_.selectedItems())
            selection_->add(text(*item));
    }
    QListWidget& shownList() { return list_; }
    void release(QPoint const& place) {
        QTest::mouseRelease(list_.viewport(), Qt::LeftButton, {}, place);
        selection_->removeAll();
        for (auto const* const item : list_.selectedItems())
            selection_->add(text(*item));
    }
    void wildcard(QString const& pattern, bool remove) {
        for (auto* const item : list_.findItems(pattern, Qt::MatchWildcard))
            apply(*item, remove);
    }
    /// Applies the tokens that the test generates, each parsed by its own pattern.
    void numbers(QString const& tokens, bool remove) {
        for (auto const& token : tokens.split(',')) {
            static QRegularExpression const range("^(\\d+)-(\\d+)$");
            static QRegularExpression const everyNth("^(\\d+)(?:th|nd|rd|st)(?:\\+(\\d+))?$");
            auto const found = range.match(token);
            auto const steps = everyNth.match(token);
            if (found.hasMatch()) {
                int const a = found.captured(1).toInt();
                int const b = found.captured(2).toInt();
                for (int row = std::min(a, b); std::max(a, b) < list_.count() && row <= std::max(a, b); ++row)
                    apply(*list_.item(row), remove);
            } else if (steps.hasMatch()) {
                int const step = std::max(1, steps.captured(1).toInt());
                for (int row = steps.captured(2).toInt(); row < list_.count(); row += step)
                    apply(*list_.item(row), remove);
            } else if (token.toInt() < list_.count()) {
                apply(*list_.item(token.toInt()), remove);
            }
        }
    }

    QListWidget const& list() const { return list_; }
    QSize size() const { return size_; }

private:
    static std::string text(QListWidgetItem const& item) { return item.data(Qt::DisplayRole).toString().toStdString(); }
    void apply(QListWidgetItem& item, bool remove) {
        if (remove)
            selection_->removeFromSelection(text(item));
        else
            selection_->add(text(item));
        item.setSelected(!remove);
    }

    Kolt::VMultipleStringList selection_;
    QListWidget list_;
    QSize size_;
};

class QuickWayTest : public MultipleSelectionTest, public testing::WithParamInterface<unsigned> {
protected:
    int below(std::size_t limit) { return static_cast<int>(random_() % limit); }
    template <typename Choices>
    auto oneOf(Choices const& choices) {
        return choices[random_() % choices.size()];
    }

    /// A few different texts, so that many are equal; some contain a slash, are of other scripts, or are long.
    std::vector<std::string> randomStrings() {
        std::vector<std::string> const words = {"a",   "A",    "ab",  "b/a",      "/",
                                                "",    "9",    "x9y", "\xC3\xA4", "\xE6\x97\xA5",
                                                "a b", "a\nb", "[a]", "*",        std::string(60, 'm')};
        std::vector<std::string> strings(random_() % 30);
        for (auto& string : strings)
            string = oneOf(words) + (random_() % 2 ? oneOf(words) : std::string());
        return strings;
    }
    void chooseSome(MultipleStringSelection& selection) {
        for (auto const& string : selection) {
            if (random_() % 2)
                selection.add(string);
        }
    }
    QString randomPattern() {
        return oneOf(std::vector<QString>{"*", "?", "a*", "*a", "*9*", "*/*", "", "[ab]*", "??",
                                          QString::fromUtf8("\xC3\x84*"), "*m", "[[]a]"});
    }
    QString randomNumbers() {
        QStringList tokens;
        for (int count = 1 + below(3); count > 0; --count) {
            auto const a = QString::number(below(34));
            auto const b = QString::number(below(34));
            tokens.append(
                oneOf(std::vector<QString>{a, a + "-" + b, a + "th", a + "nd+" + b, a + "rd", a + "st+" + b}));
        }
        return tokens.join(',');
    }

    // act() performs the kinds below this one.
    static constexpr int RefillKind = 7;
    static bool isClick(int kind) { return kind == 3 || kind == 4; }
    /// Performs an action on the editor and on the reference, and returns its description. A click needs a row.
    QString act(int kind, QWidget& widget, RowByRow& literal, bool remove) {
        if (kind == 0) {
            press(widget, "All");
            literal.all();
            return "All";
        }
        if (kind == 1) {
            press(widget, "None");
            literal.none();
            return "None";
        }
        if (kind == 2) {
            press(widget, "Inverse");
            literal.inverse();
            return "Inverse";
        }
        if (isClick(kind)) {
            if (auto const count = list(widget)->count()) {
                int const row = below(static_cast<std::size_t>(count));
                click(widget, row);
                literal.click(row);
            }
            return "click";
        }
        if (kind == 5) {
            auto const pattern = randomPattern();
            enterWildcard(widget, pattern);
            literal.wildcard(pattern, remove);
            return "wildcard " + pattern;
        }
        auto const numbers = randomNumbers();
        enterNumbers(widget, numbers);
        literal.numbers(numbers, remove);
        return "numbers " + numbers;
    }

    /// Presses, moves or releases the mouse at the same place of the editor's list and of the reference, and returns a
    /// description.
    QString useMouse(QWidget& widget, RowByRow& literal) {
        auto& rows = *list(widget);
        rows.doItemsLayout();
        literal.imitate(rows);
        auto const& area = rows.viewport()->size();
        QPoint const place(below(static_cast<std::size_t>(area.width())),
                           below(static_cast<std::size_t>(area.height())));
        if (!isHeld_) {
            isHeld_ = true;
            QTest::mousePress(rows.viewport(), Qt::LeftButton, {}, place);
            QTest::mousePress(literal.shownList().viewport(), Qt::LeftButton, {}, place);
            return "press";
        }
        if (below(2) && mayMove_) {
            move(rows, place);
            move(literal.shownList(), place);
            return "move";
        }
        isHeld_ = false;
        QTest::mouseRelease(rows.viewport(), Qt::LeftButton, {}, place);
        literal.release(place);
        return "release";
    }

    /// Whether the mouse button is held down.
    bool isHeld_ = false;
    /// False after "None": the order in which it deselects rows is unspecified, and a mouse move would select the last
    /// of them again.
    bool mayMove_ = true;

private:
    std::mt19937 random_{GetParam()};
};

} // namespace

TEST_P(QuickWayTest, DoesWhatRowByRowDoes) {
    auto const selection = makeSelection(randomStrings());
    chooseSome(*selection);
    auto const parameter = parameterOf(selection);
    auto const editor = openShown(parameter);
    auto& widget = *editor.widget;
    record(parameter);

    auto const literalSelection = Kolt::VValueTrait<Selection>::Clone(selection);
    RowByRow literal(literalSelection);
    EXPECT_EQ(widget.size(), literal.size());
    EXPECT_EQ(list(widget)->currentRow(), literal.list().currentRow());

    for (int action = 0; action < 40; ++action) {
        bool const remove = below(2) != 0;
        removeBox(widget)->setChecked(remove);
        int const kind = below(11);
        bool const usesMouse = kind > RefillKind || (isHeld_ && isClick(kind));
        bool const wasHeld = isHeld_;
        auto const before = commits();
        bool const isVoid = isClick(kind) && list(widget)->count() == 0;
        QString done = "refill";
        if (usesMouse) {
            done = useMouse(widget, literal);
        } else if (kind < RefillKind) {
            done = act(kind, widget, literal, remove);
        } else {
            if (below(2)) {
                selection->invertAll();
                literalSelection->invertAll();
            }
            tellOfChange(parameter);
            literal.fill();
            EXPECT_EQ(list(widget)->currentRow(), literal.list().currentRow());
            EXPECT_EQ(widget.size(), literal.size());
        }
        if (!usesMouse)
            mayMove_ = done != "None";
        bool const isCommit = usesMouse ? wasHeld && !isHeld_ : !isVoid;
        ASSERT_EQ(selectedRows(widget), selectedRows(literal.list())) << qPrintable(done) << action;
        ASSERT_EQ(chosen(selection), chosen(literalSelection)) << qPrintable(done) << action;
        ASSERT_EQ(commits(), before + (isCommit ? 1U : 0U)) << qPrintable(done) << action;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, QuickWayTest, testing::Range(0U, 150U));
