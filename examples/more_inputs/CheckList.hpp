#pragma once

#include <bramble/MultipleStringSelection.hpp>
#include <lattice/CreationPreferences.hpp>
#include <plugin/VInputValue.hpp>
#include <QCheckBox>
#include <QVBoxLayout>
#include <QWidget>
#include <vector>

namespace MoreInputs {

/// Edits a selection of several texts with a check box for each, for short lists; chosen by the preference "text list".
/// A selection of more than `MostTexts` keeps its usual editor. Equal texts are chosen together. User-interface thread.
class CheckList : public QWidget, public Kolt::VInputValue<Kolt::VMultipleStringList> {
    Q_OBJECT

public:
    /// How many boxes a person still takes in.
    static constexpr std::size_t MostTexts = 32;

    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    CheckList(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* poolSource,
              Kolt::PreferencesPtr const& preferences);
    ~CheckList() override;

    /// Shows a choice of the editor's pool; any other value is ignored.
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;

private:
    /// Shows a selection without writing it; nothing for any other value.
    void showStored(Kolt::ValuePtr const& value);
    /// Has a box for each text.
    void makeBoxes();
    void showChoice();
    /// Writes that the user chose, or no longer chooses, a text. The editor may be deleted meanwhile.
    void write(std::size_t place, bool isChosen);

    QVBoxLayout* const layout_;
    // Children, by the places of their texts.
    std::vector<QCheckBox*> boxes_;
    // The list that the boxes show; null before the first.
    Kolt::VMultipleStringList shown_;
};

} // namespace MoreInputs
