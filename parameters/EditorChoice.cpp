#include <parameters/EditorChoice.hpp>

#include <lattice/InputRegistry.hpp>
#include <QHash>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <sorrel/QInputCreator.hpp>

namespace Talo {

namespace {

/// The widgets with a choice. Each change of a value asks for the one around an editor, and a property of a widget
/// takes too long for that.
QHash<QWidget const*, QPointer<EditorChoice>>& installations() {
    static QHash<QWidget const*, QPointer<EditorChoice>> all;
    return all;
}

EditorChoice::Names changedBy(EditorChoice::Names names, QString const& key, QString const& creator) {
    if (creator.isEmpty())
        names.remove(key);
    else
        names.insert(key, creator);
    return names;
}

} // namespace

EditorChoice::EditorChoice(QObject* parent) : QObject(parent) {}

EditorChoice::~EditorChoice() = default;

QString EditorChoice::nameOf(Kolt::VInputCreatorBase const& creator) {
    QStringList preferences;
    for (auto const& name : creator.preferences()->names())
        preferences << QString::fromStdString(name);
    return QStringLiteral("%1 {%2}").arg(QString::fromStdString(creator.Name()), preferences.join(QLatin1String(", ")));
}

QMap<QString, Kolt::CreatorRef> EditorChoice::candidates(Kolt::VParameter const& parameter) {
    QMap<QString, Kolt::CreatorRef> found;
    for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
        auto const creator = entry.creator.strong();
        if (creator && entry.valueType == parameter.declaredType() && creator->supports(parameter) &&
            creator->getInterface<Kolt::QInputCreator>())
            found.insert(nameOf(*creator), entry.creator);
    }
    return found;
}

EditorChoice* EditorChoice::around(QWidget const* widget) {
    auto const& all = installations();
    for (; widget; widget = widget->parentWidget())
        if (auto const installed = all.constFind(widget); installed != all.cend())
            return installed.value();
    return nullptr;
}

void EditorChoice::install(QWidget& widget, EditorChoice* choice) {
    auto& all = installations();
    bool const isNew = !all.contains(&widget);
    if (!choice) {
        all.remove(&widget);
        return;
    }
    all.insert(&widget, choice);
    if (isNew)
        QObject::connect(&widget, &QObject::destroyed, &widget, [key = &widget] { installations().remove(key); });
}

void EditorChoice::chooseForParameter(QString const& parameter, QString const& creator) {
    setOfParameters(changedBy(ofParameters_, parameter, creator));
}

void EditorChoice::chooseForType(QString const& type, QString const& creator) {
    setOfTypes(changedBy(ofTypes_, type, creator));
}

void EditorChoice::setOfParameters(Names const& names) {
    replace(ofParameters_, names);
}

void EditorChoice::setOfTypes(Names const& names) {
    replace(ofTypes_, names);
}

void EditorChoice::replace(Names& names, Names const& by) {
    if (names == by)
        return;
    names = by;
    emit changed();
}

Kolt::CreatorRef EditorChoice::creatorFor(Kolt::VParameter const& parameter) const {
    // Asked after each change of a value, and mostly there is no choice at all.
    if (ofParameters_.isEmpty() && ofTypes_.isEmpty())
        return {};
    auto const ofType = ofTypes_.value(QString::fromStdString(parameter.declaredType()));
    auto const name = ofParameters_.value(QString::fromStdString(parameter.fullName()), ofType);
    return name.isEmpty() ? Kolt::CreatorRef() : candidates(parameter).value(name);
}

} // namespace Talo
