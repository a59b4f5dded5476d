#include "EditorCases.hpp"

#include <bramble/Action.hpp>
#include <bramble/Color.hpp>
#include <QColorDialog>
#include <QLabel>
#include <QSpinBox>
#include <QTest>

namespace {

std::string swatchText(QColor const& colour, QString const& text) {
    return (colour.name(QColor::HexArgb) + text).toStdString();
}

/// Presses the swatch and turns the green channel by one step in the dialog.
void pickAnotherGreen(QWidget& swatch) {
    QTest::mousePress(&swatch, Qt::LeftButton);
    auto* const dialog = swatch.findChild<QColorDialog*>();
    for (auto* const label : dialog->findChildren<QLabel*>()) {
        if (label->text() != QLatin1String("&Green:"))
            continue;
        auto* const green = qobject_cast<QSpinBox*>(label->buddy());
        QTest::keyClick(green, green->value() > 0 ? Qt::Key_Down : Qt::Key_Up);
    }
}

} // namespace

void addActionEditors(std::vector<EditorCase>& cases) {
    EditorCase action;
    action.name = "action";
    action.creator = "action";
    action.makeValue = [](int n) {
        return Kolt::makeValue(Tessera::StrongPtr<Kolt::VAction>(new Kolt::VAction(std::to_string(n))));
    };
    action.change = [make = action.makeValue](Kolt::VValueBase& value, int n) {
        using Value = Kolt::VValue<Tessera::StrongPtr<Kolt::VAction>>;
        dynamic_cast<Value&>(value).set(Kolt::valueOr(make(n), Tessera::StrongPtr<Kolt::VAction>()));
    };
    action.showsValue = false;
    action.edit = [](QWidget& editor) { QTest::mouseClick(&editor, Qt::LeftButton); };
    action.writes = false;
    cases.push_back(action);

    EditorCase colour;
    colour.name = "ColorDisplay";
    colour.creator = "ColorDisplay";
    colour.makeValue = [](int n) {
        Ferro::rgba_float_t const values[] = {
            {1.0F, 0.0F, 0.0F, 1.0F}, {0.0F, 0.5F, 0.25F, 0.5F}, {0.8F, 1.0F, 0.6F, 0.0F}};
        return Kolt::makeValue(values[n]);
    };
    colour.shown = [](QWidget& editor) {
        return swatchText(editor.palette().color(QPalette::Window), dynamic_cast<QLabel&>(editor).text());
    };
    colour.expected = [](Kolt::VValueBase const& value) {
        Ferro::rgba_float_t channels;
        dynamic_cast<Kolt::VValue<Ferro::rgba_float_t> const&>(value).get(channels);
        auto const alpha = static_cast<double>(channels.alpha);
        return swatchText(QColor::fromRgbF(static_cast<double>(channels.red), static_cast<double>(channels.green),
                                           static_cast<double>(channels.blue), alpha),
                          " " + QString::number(alpha, 'f', 2) + " ");
    };
    colour.edit = pickAnotherGreen;
    cases.push_back(colour);
}
