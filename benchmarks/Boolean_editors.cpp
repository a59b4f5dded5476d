#include "BenchmarkCase.hpp"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QTest>

namespace {

class BareBoolean : public QFrame, public BareEditor {
public:
    explicit BareBoolean(QWidget* parent) : QFrame(parent), box_(new QCheckBox) {
        auto* const layout = new QHBoxLayout;
        layout->addWidget(box_);
        layout->setAlignment(box_, Qt::AlignLeft | Qt::AlignVCenter);
        layout->setContentsMargins(3, 3, 3, 3);
        setLayout(layout);
        box_->setChecked(value_);
        connect(box_, &QCheckBox::clicked, this, [this](bool checked) {
            value_ = checked;
            notify(QString::number(value_));
        });
    }

    QWidget* widget() override { return this; }
    void change(int n) override {
        value_ = n == 1;
        box_->setChecked(value_);
    }

private:
    QCheckBox* const box_;
    bool value_ = false;
};

} // namespace

void addBooleanBenchmarks(std::vector<BenchmarkCase>& cases) {
    auto boolean = benchmarkCase("boolean", {}, false, true);
    boolean.makeBare = [](QWidget* parent) { return new BareBoolean(parent); };
    boolean.edit = [](QWidget& editor, int) { QTest::mouseClick(editor.findChild<QCheckBox*>(), Qt::LeftButton); };
    cases.push_back(boolean);
}
