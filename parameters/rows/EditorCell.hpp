#pragma once

#include <bramble/Enum.hpp>
#include <memory>
#include <parameters/PoolSourceRef.hpp>
#include <QPointer>
#include <QWidget>
#include <sorrel/InputFrontEnd.hpp>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// Makes one editor for a parameter and adapts it to a form: the wheel changes it only when it has the focus; on demand
/// its width is limited, and every control gets an accessible name and can be used by keyboard. Where no editor can be
/// made, or it would lose every edit, a PlaceholderEditor takes its place.
///
/// The editor belongs to its parent widget; the cell may be destroyed before it. The parameter is referred to weakly.
/// User-interface thread.
class TALO_EXPORT EditorCell {
public:
    /// Without a pool after `pools` was destroyed.
    EditorCell(Kolt::ParameterRef parameter, PoolSourceRef const& pools);
    ~EditorCell();
    EditorCell(EditorCell const&) = delete;
    EditorCell& operator=(EditorCell const&) = delete;

    /// Makes the editor, or its placeholder, as a child of `parent` and returns it, not yet shown. Returns the existing
    /// one if there is one, and null if the parameter is gone.
    QWidget* open(QWidget* parent);
    /// Says that the editor had a fault: from the next time that the cell is opened on, it has a placeholder with this
    /// sentence.
    void setFault(QString sentence) { fault_ = std::move(sentence); }
    /// Hides the editor and deletes it as soon as control returns to the event loop.
    void close();

    /// The editor or its placeholder; null while closed.
    QWidget* widget() const { return editor_.widget; }
    /// Whether the open cell has a placeholder instead of an editor.
    bool isPlaceholder() const { return isPlaceholder_; }
    /// Which creator made the editor and why, or why there is none.
    Kolt::InputChoice const& choice() const { return editor_.choice; }
    /// What was made, with the placeholder as its widget where there is one; without a widget while closed.
    Kolt::Editor const& editor() const { return editor_; }
    /// The controls in the editor that take the focus, without those in its dialogs. REQUIRES: an open cell.
    std::vector<QWidget*> controls() const;

    /// Removes the margins around the controls of an editor without a frame, so that the controls of all rows begin at
    /// one edge. REQUIRES: an open cell.
    void removeMargins();
    /// Limits the editor's width to what its controls need and can use, where this many pixels are available. Some
    /// editors set their size with each value, so it is to be called again when one asks for another size. REQUIRES: an
    /// open cell.
    void limitWidth(int available);
    /// The least width at which no control is cut off, in pixels. REQUIRES: an open cell.
    int leastWidth() const;
    /// Whether the editor can show what the pool source's pool holds. The buttons of an enumeration are those of the
    /// value with which it was made, and once one is marked, one stays marked. False as well when another creator was
    /// chosen meanwhile (EditorChoice), and when the value has become, or is no longer, of a type that is edited. An
    /// editor that cannot is to be closed and opened again. True for a closed cell.
    bool canShowValue() const;
    /// Shows what the pool source's pool holds. Nothing is written.
    void showPool();
    /// Names the controls that have no accessible name: `name`, followed by the control's own caption. Makes those
    /// usable by keyboard that react to the mouse only; `edited` says whether the editor itself is such a control.
    void nameControls(QString const& name, bool edited);
    /// Names them again, in the language of now: those that `nameControls` named.
    void renameControls(QString const& name) const;
    /// Gives every control this accessible description, followed by its tool tip.
    void describeControls(QString const& description);
    /// Gives a control the accessible description again, after its tool tip changed.
    void describe(QWidget& control) const;

private:
    QWidget* placeholder(Kolt::VParameter const& parameter, QWidget* parent) const;

    Kolt::ParameterRef const parameter_;
    PoolSourceRef const pools_;
    Kolt::Editor editor_;
    // Empty while the editor had none.
    QString fault_;
    // That a person chose when the editor was made; empty for the usual one.
    Kolt::CreatorRef chosen_;
    bool isPlaceholder_ = false;
    // What the value lacked to be edited when the editor was made (Kolt::missingValueType).
    std::string neededType_;
    // Those of an enumeration when its editor was made; null for other types.
    Tessera::StrongPtr<Tessera::StringList> names_;
    // The controls without a name of their own.
    std::vector<QPointer<QWidget>> named_;
    // The accessible description of every control, without its tool tip.
    QString description_;
};

} // namespace Talo
