#include <parameters/input/FileDialogHelp.hpp>

#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QRegularExpression>
#include <QVariant>

namespace Talo {

namespace {

/// The suffix of "PDF (*.pdf)"; empty for all files, and for a kind with several suffixes the first one.
QString suffixOf(QString const& filter) {
    static QRegularExpression const pattern(QStringLiteral("\\*\\.(\\w+)"));
    return pattern.match(filter).captured(1);
}

/// What the nearest widget around the dialog says.
QString textAround(QWidget const& dialog, char const* property) {
    for (auto const* widget = dialog.parentWidget(); widget; widget = widget->parentWidget()) {
        auto const text = widget->property(property).toString();
        if (!text.isEmpty())
            return text;
    }
    return {};
}

void addSuffix(QFileDialog& dialog) {
    auto const kinds = textAround(dialog, FileKindsProperty);
    // An editor that names kinds of its own knows better.
    if (!kinds.isEmpty() && suffixOf(dialog.selectedNameFilter()).isEmpty())
        dialog.setNameFilters(kinds.split(QStringLiteral(";;")));
    dialog.setDefaultSuffix(suffixOf(dialog.selectedNameFilter()));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](QString const& filter) { dialog.setDefaultSuffix(suffixOf(filter)); });
}

bool hasChosenFile(QFileDialog const& dialog) {
    auto const* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    return name && !name->text().isEmpty();
}

} // namespace

void helpFileDialog(QWidget& widget, QEvent const& event) {
    auto* const dialog = event.type() == QEvent::Show ? qobject_cast<QFileDialog*>(&widget) : nullptr;
    if (!dialog)
        return;
    auto const folder = textAround(*dialog, FileFolderProperty);
    if (!folder.isEmpty() && !hasChosenFile(*dialog))
        dialog->setDirectory(folder);
    if (dialog->acceptMode() == QFileDialog::AcceptSave && dialog->defaultSuffix().isEmpty())
        addSuffix(*dialog);
}

} // namespace Talo
