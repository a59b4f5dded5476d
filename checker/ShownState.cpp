#include <checker/ShownState.hpp>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCryptographicHash>
#include <QImage>
#include <QItemSelectionModel>
#include <QLCDNumber>
#include <QPalette>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QStringList>
#include <QTextEdit>

namespace Checker {

namespace {

QString textOfItems(QAbstractItemView const& view) {
    QStringList items;
    auto const* const model = view.model();
    for (int row = 0; model && row < model->rowCount(view.rootIndex()); ++row) {
        auto const index = model->index(row, 0, view.rootIndex());
        auto const* const selection = view.selectionModel();
        items << index.data().toString() +
                     (selection && selection->isSelected(index) ? QStringLiteral(" *") : QString()) +
                     index.data(Qt::CheckStateRole).toString();
    }
    return items.join(QLatin1Char('|'));
}

QString pictureOf(QWidget& widget) {
    auto const image = widget.grab().toImage().convertToFormat(QImage::Format_ARGB32);
    QByteArray const bytes(reinterpret_cast<char const*>(image.constBits()), static_cast<int>(image.sizeInBytes()));
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex());
}

/// The colours that a widget was given, by which some show their value; empty for those of the program.
QString coloursOf(QWidget const& widget) {
    if (!widget.testAttribute(Qt::WA_SetPalette) && widget.styleSheet().isEmpty())
        return {};
    QStringList colours{widget.styleSheet()};
    for (auto const role : {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::Text, QPalette::Button})
        colours << widget.palette().color(role).name(QColor::HexArgb);
    return colours.join(QLatin1Char(' '));
}

/// What one widget says itself; empty for one that only holds others.
QString saidByItself(QWidget& widget) {
    if (auto const* const button = qobject_cast<QAbstractButton*>(&widget))
        return button->isChecked() ? button->text() + QStringLiteral(" *") : button->text();
    if (auto const* const box = qobject_cast<QComboBox*>(&widget))
        return box->currentText();
    if (auto const* const view = qobject_cast<QAbstractItemView*>(&widget))
        return textOfItems(*view);
    if (auto const* const text = qobject_cast<QTextEdit*>(&widget))
        return text->toPlainText();
    if (auto const* const text = qobject_cast<QPlainTextEdit*>(&widget))
        return text->toPlainText();
    if (auto const* const number = qobject_cast<QLCDNumber*>(&widget))
        return QString::number(number->value());
    // The property that a widget calls its own: the text of a line edit, the value of a slider, a dial or a spin box.
    auto const* const meta = widget.metaObject();
    for (auto const* const name : {"text", "value", "plainText"})
        if (meta->indexOfProperty(name) >= 0)
            return widget.property(name).toString();
    return {};
}

} // namespace

std::string shownState(QWidget& editor) {
    QStringList state;
    auto widgets = editor.findChildren<QWidget*>();
    widgets.prepend(&editor);
    bool saysSomething = false;
    for (auto* const widget : qAsConst(widgets)) {
        // A window of its own (a dialog of the editor) shows nothing in the row.
        if (widget != &editor && widget->window() != editor.window())
            continue;
        auto const shown = saidByItself(*widget) + coloursOf(*widget);
        saysSomething = saysSomething || !shown.isEmpty();
        if (!shown.isEmpty())
            state << QLatin1String(widget->metaObject()->className()) + QStringLiteral(": ") + shown;
    }
    // What paints its value says nothing of it.
    if (!saysSomething)
        state << QStringLiteral("picture: ") + pictureOf(editor);
    return state.join(QStringLiteral("; ")).toStdString();
}

} // namespace Checker
