#pragma once

#include <lattice/InputCreator.hpp>
#include <QMap>
#include <QObject>
#include <QString>
#include <tessera/Export.hpp>
#include <vector>

class QWidget;

namespace Talo {

/// Which of the registered creators edits a parameter, where a person chose one instead of the usual: for one
/// parameter, or for all parameters of a type. A ParameterPanel asks the choice that it was given
/// (ParameterPanel::setEditorChoice); any number of panels may share one. A choice is kept while its creator is not
/// registered, as when its plug-in is not loaded; meanwhile the usual creator edits. User-interface thread.
class TALO_EXPORT EditorChoice : public QObject {
    Q_OBJECT

public:
    /// The names of creators (nameOf), by types or by "object.parameter".
    using Names = QMap<QString, QString>;

    /// Without choices.
    explicit EditorChoice(QObject* parent = nullptr);
    ~EditorChoice() override;

    /// The name under which a creator is chosen: its own and its preferences, as in "selection {QT, editable}".
    static QString nameOf(Kolt::VInputCreatorBase const& creator);
    /// The registered creators that can edit a parameter in a panel, by their names.
    static QMap<QString, Kolt::CreatorRef> candidates(Kolt::VParameter const& parameter);
    /// The choice of the panel that a widget is in; null for none.
    static EditorChoice* around(QWidget const* widget);
    /// Has the widgets in `widget` find this choice. It is not owned; null for none.
    static void install(QWidget& widget, EditorChoice* choice);

    /// Chooses the creator of this name for a parameter, "object.parameter"; the empty name: as for its type.
    void chooseForParameter(QString const& parameter, QString const& creator);
    /// Chooses the creator of this name for all parameters of a type (VParameter::declaredType) that have no choice of
    /// their own; the empty name: the usual one.
    void chooseForType(QString const& type, QString const& creator);
    /// All choices, to be kept by the host, and given back.
    Names const& ofParameters() const { return ofParameters_; }
    void setOfParameters(Names const& names);         ///< replaces all choices for single parameters
    Names const& ofTypes() const { return ofTypes_; } ///< the choices for types
    void setOfTypes(Names const& names);              ///< replaces all choices for types

    /// The chosen creator; empty where the usual one edits.
    Kolt::CreatorRef creatorFor(Kolt::VParameter const& parameter) const;

signals:
    /// Another creator may have been chosen for some parameter.
    void changed();

private:
    void replace(Names& names, Names const& by);

    Names ofParameters_;
    Names ofTypes_;
};

} // namespace Talo
