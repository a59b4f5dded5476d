#include "BenchmarkCase.hpp"

#include <algorithm>
#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/StringSelection.hpp>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QVBoxLayout>

namespace {

std::vector<std::string> const names = {"sine", "noise", "spiral", "plasma"};

QStringList shownNames() {
    QStringList shown;
    for (auto const& name : names)
        shown.append(QString::fromStdString(name));
    return shown;
}

class BareEnumeration : public QGroupBox, public BareEditor {
public:
    explicit BareEnumeration(QWidget* parent) : QGroupBox(parent) {
        auto* const layout = new QGridLayout;
        layout->setContentsMargins(0, 0, 0, 0);
        setLayout(layout);
        int place = 0;
        for (auto const& name : shownNames()) {
            auto* const button = new QRadioButton(name, this);
            layout->addWidget(button, place / 3, place % 3);
            button->setChecked(place == value_);
            connect(button, &QRadioButton::toggled, this, [this, place](bool on) {
                if (!on)
                    return;
                value_ = place;
                notify(QString::number(place));
            });
            buttons_.push_back(button);
            ++place;
        }
    }

    QWidget* widget() override { return this; }
    void change(int n) override { buttons_[static_cast<std::size_t>(n)]->setChecked(true); }

private:
    std::vector<QRadioButton*> buttons_;
    int value_ = 0;
};

class BareFlagList : public QFrame, public BareEditor {
public:
    explicit BareFlagList(QWidget* parent) : QFrame(parent) {
        auto* const layout = new QVBoxLayout(this);
        layout->setContentsMargins(1, 1, 1, 1);
        setFrameStyle(QFrame::Panel | QFrame::Plain);
        for (auto const& name : shownNames()) {
            auto* const box = new QCheckBox(name);
            layout->addWidget(box);
            boxes_.push_back(box);
            value_[name.toStdString()] = false;
            connect(box, &QCheckBox::stateChanged, this, [this] {
                for (std::size_t place = 0; place < boxes_.size(); ++place)
                    value_[names[place]] = boxes_[place]->isChecked();
                notify(QStringLiteral("flags"));
            });
        }
    }

    QWidget* widget() override { return this; }
    void change(int n) override {
        for (auto* const box : boxes_) {
            QSignalBlocker const blocker(box);
            box->setChecked(n == 1);
        }
    }

private:
    std::vector<QCheckBox*> boxes_;
    std::map<std::string, bool> value_;
};

class BareStringList : public QFrame, public BareEditor {
public:
    BareStringList(QWidget* parent, bool editable) : QFrame(parent), box_(new QComboBox(this)) {
        auto* const layout = new QHBoxLayout(this);
        layout->addWidget(box_);
        layout->setSpacing(0);
        layout->setContentsMargins(0, 0, 0, 0);
        box_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        box_->setEditable(editable);
        box_->addItems(shownNames());
        connect(box_, QOverload<int>::of(&QComboBox::activated), this, [this](int place) {
            value_ = place;
            notify(box_->itemText(place));
        });
    }

    QWidget* widget() override { return this; }
    void change(int n) override {
        value_ = n;
        box_->setCurrentIndex(n);
    }

private:
    QComboBox* const box_;
    int value_ = 0;
};

class BareMultipleStringList : public QFrame, public BareEditor {
public:
    explicit BareMultipleStringList(QWidget* parent) : QFrame(parent), list_(new QListWidget(this)) {
        auto* const layout = new QHBoxLayout(this);
        auto* const column = new QVBoxLayout;
        for (auto const* const label : {"All", "None", "Inverse"}) {
            auto* const button = new QPushButton(QLatin1String(label), this);
            column->addWidget(button);
            if (QLatin1String(label) == QLatin1String("Inverse"))
                connect(button, &QPushButton::pressed, this, [this] {
                    for (int row = 0; row < list_->count(); ++row)
                        list_->item(row)->setSelected(!list_->item(row)->isSelected());
                    value_ = list_->selectionModel()->selectedRows();
                    notify(QStringLiteral("rows"));
                });
        }
        auto* const remove = new QCheckBox(QLatin1String("remove"), this);
        remove->setToolTip(QLatin1String("Removes the matching rows"));
        column->addWidget(remove);
        for (auto const* const label : {"Wildcard:", "By Number:"}) {
            auto* const shown = new QLabel(QLatin1String(label), this);
            auto* const edit = new QLineEdit(this);
            shown->setToolTip(QLatin1String("Selects rows"));
            edit->setToolTip(QLatin1String("Selects rows"));
            column->addWidget(shown);
            column->addWidget(edit);
        }
        layout->addLayout(column);
        layout->addWidget(list_);
        list_->setMovement(QListView::Static);
        list_->setSelectionMode(QAbstractItemView::MultiSelection);
        fill();
        change(0);
    }

    QWidget* widget() override { return this; }
    void change(int n) override {
        for (int row = 0; row < list_->count(); ++row)
            list_->item(row)->setSelected(row == n);
        list_->setCurrentRow(n, QItemSelectionModel::NoUpdate);
    }

private:
    void fill() {
        int width = 0;
        for (auto const& name : shownNames()) {
            width = std::max(width, list_->fontMetrics().horizontalAdvance(name) * 15 / 10);
            auto* const item = new QListWidgetItem(name);
            list_->insertItem(list_->count(), item);
        }
        auto const hint = list_->sizeHint();
        setFixedSize(std::max(width, hint.width()), static_cast<int>(hint.height() * 1.3));
    }

    QListWidget* const list_;
    QModelIndexList value_;
};

Kolt::Enum enumerationOf(unsigned n) {
    Tessera::StrongPtr<Kolt::VEnumSelection, Tessera::StringList> const selection(new Kolt::VEnumSelection(names));
    selection->select(n);
    return Kolt::Enum(selection);
}

Kolt::FlagList flagsOf(bool on) {
    Kolt::FlagList flags;
    for (auto const& name : names)
        flags[name] = on;
    return flags;
}

Kolt::VStringList stringsOf(std::size_t n) {
    return Kolt::VStringList(new Kolt::StringSelection(names, names[n]));
}

Kolt::VMultipleStringList chosenStringsOf(std::size_t n) {
    Kolt::VMultipleStringList const selection(new Kolt::MultipleStringSelection(names));
    selection->add(names[n]);
    return selection;
}

/// Every parameter gets a selection of its own: they are changed in place.
template <typename T>
BenchmarkCase selectionCase(std::string const& creator, std::vector<std::string> const& preferences,
                            std::function<T(int)> const& make) {
    auto made = benchmarkCase(creator, preferences, T(), T());
    auto const makeEmpty = made.makeParameter;
    made.makeParameter = [=] {
        auto const parameter = makeEmpty();
        dynamic_cast<Kolt::VValue<T>&>(*parameter->ownValue()).set(make(0));
        return parameter;
    };
    made.change = [first = make(0), second = make(1)](Kolt::VParameter& parameter, int n) {
        if (!Kolt::setParameterValue(parameter, n == 0 ? first : second, nullptr, std::string(), false, nullptr,
                                     nullptr))
            qFatal("The benchmark cannot write the value.");
    };
    return made;
}

} // namespace

void addSelectionBenchmarks(std::vector<BenchmarkCase>& cases) {
    auto enumeration = selectionCase<Kolt::Enum>("enum", {}, [](int n) { return enumerationOf(n == 1 ? 1 : 0); });
    enumeration.makeBare = [](QWidget* parent) { return new BareEnumeration(parent); };
    enumeration.edit = [](QWidget& editor, int n) {
        QTest::keyClick(editor.findChildren<QRadioButton*>()[n], Qt::Key_Space);
    };
    cases.push_back(enumeration);

    auto flags = selectionCase<Kolt::FlagList>("checkboxes", {}, [](int n) { return flagsOf(n == 1); });
    flags.makeBare = [](QWidget* parent) { return new BareFlagList(parent); };
    flags.edit = [](QWidget& editor, int) { QTest::keyClick(editor.findChild<QCheckBox*>(), Qt::Key_Space); };
    cases.push_back(flags);

    for (bool const editable : {false, true}) {
        std::vector<std::string> const preferences(editable ? 1 : 0, "editable");
        auto multiple = selectionCase<Kolt::VMultipleStringList>("selection", preferences,
                                                                 [](int n) { return chosenStringsOf(n == 1 ? 1 : 0); });
        multiple.name = "multiple selection";
        multiple.makeBare = [](QWidget* parent) { return new BareMultipleStringList(parent); };
        multiple.edit = [](QWidget& editor, int) {
            QTest::mousePress(editor.findChildren<QPushButton*>()[2], Qt::LeftButton);
        };
        cases.push_back(multiple);

        auto strings =
            selectionCase<Kolt::VStringList>("selection", preferences, [](int n) { return stringsOf(n == 1 ? 1 : 0); });
        strings.makeBare = [editable](QWidget* parent) { return new BareStringList(parent, editable); };
        strings.edit = [](QWidget& editor, int n) {
            QTest::keyClick(editor.findChild<QComboBox*>(), n == 0 ? Qt::Key_Up : Qt::Key_Down);
        };
        cases.push_back(strings);
    }
}
