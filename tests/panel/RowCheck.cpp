#include "RowCheck.hpp"

#include <algorithm>
#include <parameters/commands/UndoText.hpp>
#include <parameters/rows/ModifiedIndicator.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <parameters/rows/PlaceholderEditor.hpp>
#include <parameters/rows/RowTexts.hpp>
#include <QScrollBar>

namespace {

using Faults = std::vector<std::string>;

// In characters. What a raw value shows of a long text, and what a screen reader reads of it.
constexpr int longestRaw = 2000;
constexpr int longestRead = 200;

/// What is wrong with one row.
class RowFaults {
public:
    RowFaults(Kolt::VObject const& object, Talo::ParameterRow const& row, Faults& all)
        : object_(object), row_(row), all_(all) {}

    void check(bool rawValuesShown) {
        checkMark();
        checkNote();
        checkRawValue(rawValuesShown);
        checkToolTip();
        if (row_.editor() && !qobject_cast<Talo::PlaceholderEditor*>(row_.editor()))
            checkControls();
    }

private:
    void add(std::string const& fault) {
        all_.push_back(object_.Name() + "." + row_.parameterName().toStdString() + " " + fault);
    }
    void expect(char const* what, QString const& text, QString const& part) {
        if (!text.contains(part))
            add(std::string(what) + " \"" + text.toStdString() + "\" without \"" + part.toStdString() + "\"");
    }

    void checkMark() {
        auto const* const mark = row_.modifiedIndicator();
        auto const* const defaults = row_.parameter()->defaults();
        bool const isMarked = mark && !mark->isHidden();
        bool const isChanged = defaults && !defaults->isEffectiveIn(*row_.parameter(), row_.pool());
        if (isMarked != isChanged)
            add(isMarked ? "is marked as changed" : "has changed and is not marked");
        if (!isMarked || !isChanged)
            return;
        auto const named =
            Talo::ModifiedIndicator::tr("Default: %1").arg(Talo::valueText(*defaults->in(row_.pool()).value));
        expect("mark's tool tip", mark->toolTip(), named.toHtmlEscaped());
        expect("mark's accessible description", mark->accessibleDescription(), named);
    }

    void checkNote() {
        // A component says nothing below the name of the vector.
        bool const isComponent = row_.nameWidth() == 0;
        auto const note = Talo::rowNote(row_.parameter(), row_.pool());
        if (!isComponent && row_.note() != note)
            add("note \"" + row_.note().toStdString() + "\", not \"" + note.toStdString() + "\"");
    }

    void checkRawValue(bool shown) {
        auto const* const raw = row_.rawValue();
        bool const isShown = raw && !raw->isHidden();
        if (isShown != shown)
            add(isShown ? "shows its raw value" : "does not show its raw value");
        if (!isShown)
            return;
        auto const value = row_.parameter()->effectiveValue(row_.pool());
        auto const whole = QString::fromStdString(value->Text());
        auto const text = whole.size() > longestRaw ? whole.left(longestRaw) + QChar(0x2026) : whole;
        if (raw->text() != text)
            add("raw value \"" + raw->text().toStdString() + "\", not \"" + text.toStdString() + "\"");
        expect("raw value's name", raw->accessibleName(),
               Talo::RawValueLabel::tr("Raw value of %1").arg(row_.parameterName()));
        if (raw->accessibleDescription() != text.left(longestRead))
            add("raw value read as \"" + raw->accessibleDescription().toStdString() + "\"");
        expect("raw value's tool tip", raw->toolTip(), text.toHtmlEscaped());
        expect("stamp", raw->stamp(), QString::number(value->age()));
    }

    void checkToolTip() {
        Talo::ParameterDescription const description(*row_.parameter());
        expect("tool tip", row_.toolTipText(), description.label.toHtmlEscaped());
        expect("tool tip", row_.toolTipText(), description.unit.toHtmlEscaped());
    }

    void checkControls() {
        auto controls = row_.editor()->findChildren<QWidget*>();
        controls << row_.editor();
        for (auto const* const control : controls) {
            bool const isReachable = control->isVisible() && (control->focusPolicy() & Qt::TabFocus) != 0 &&
                                     control->focusProxy() == nullptr && control->window() == row_.window();
            // The control that an area scrolls is a part of the area.
            if (!isReachable || control->objectName().startsWith(QLatin1String("qt_")))
                continue;
            std::string const name = control->metaObject()->className();
            if (control->accessibleName().isEmpty())
                add(name + " has no accessible name");
            expect("accessible description", control->accessibleDescription(),
                   Talo::controlDescription(QString::fromStdString(object_.Name()), *row_.parameter(), row_.pool()));
        }
    }

    Kolt::VObject const& object_;
    Talo::ParameterRow const& row_;
    Faults& all_;
};

std::string nameOfRow(Talo::ParameterRow const& row) {
    return row.parameterName().toStdString();
}

/// Rows that stand on each other.
void checkPlaces(std::string const& object, std::vector<Talo::ParameterRow*> const& rows, Faults& all) {
    std::vector<Talo::ParameterRow*> shown;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(shown), [](auto const* row) { return row->isVisible(); });
    for (std::size_t number = 1; number < shown.size(); ++number) {
        auto const* const before = shown[number - 1];
        auto const* const row = shown[number];
        auto const place = [](Talo::ParameterRow const* each) {
            return QRect(each->mapTo(each->window(), QPoint(0, 0)), each->size());
        };
        if (place(before).intersects(place(row)))
            all.push_back(object + "." + nameOfRow(*row) + " stands on " + nameOfRow(*before));
    }
}

void checkScrolling(std::string const& object, Talo::RowArea const& area, Faults& all) {
    auto const* const bar = area.verticalScrollBar();
    auto const* const content = area.widget();
    if (!content || !area.isVisible())
        return;
    int const most = qMax(0, content->height() - area.viewport()->height());
    if (bar->maximum() != most)
        all.push_back(object + " scrolls to " + std::to_string(bar->maximum()) + ", not " + std::to_string(most));
    if (content->y() != -bar->value())
        all.push_back(object + " is scrolled by " + std::to_string(-content->y()) + ", not " +
                      std::to_string(bar->value()));
}

} // namespace

std::vector<std::string> rowFaults(Panel::MainWindow& window) {
    Faults all;
    auto const views = window.findChildren<Panel::ObjectView*>();
    for (auto const* const view : views) {
        auto const object = view->object();
        auto const rows = view->rows();
        for (auto const* const row : rows) {
            if (row->parameter() && !row->cover())
                RowFaults(*object, *row, all).check(window.rawValuesShown());
        }
        checkPlaces(object->Name(), rows, all);
        checkScrolling(object->Name(), *view->panel()->rowArea(), all);
    }
    return all;
}
