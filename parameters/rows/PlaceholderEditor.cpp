#include <parameters/rows/PlaceholderEditor.hpp>

namespace Talo {

namespace {

QString sentence(Kolt::VParameter const& parameter, std::string const& neededType) {
    if (!neededType.empty())
        return PlaceholderEditor::tr("The editor of the type %1 needs a value of type %2.")
            .arg(QString::fromStdString(parameter.declaredType()), QString::fromStdString(neededType));
    auto const names = parameter.creationPreferences() ? parameter.creationPreferences()->names()
                                                       : Kolt::VCreationPreferences::Names();
    auto const type = QString::fromStdString(parameter.declaredType());
    if (names.empty())
        return PlaceholderEditor::tr("No editor is registered for the type %1 without preferences.").arg(type);
    return PlaceholderEditor::tr("No editor is registered for the type %1 with the preferences %2.")
        .arg(type, QString::fromStdString(Kolt::preferenceText(names)));
}

} // namespace

PlaceholderEditor::PlaceholderEditor(Kolt::VParameter const& parameter, QWidget* parent, std::string const& neededType)
    : PlaceholderEditor(sentence(parameter, neededType), parent) {}

PlaceholderEditor::PlaceholderEditor(QString const& sentence, QWidget* parent) : MutedLabel(sentence, parent) {
    // The name of a type can look like a tag.
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setMargin(4);
}

PlaceholderEditor::~PlaceholderEditor() = default;

} // namespace Talo
