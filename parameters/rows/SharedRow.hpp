#pragma once

#include <memory>
#include <parameters/commands/SharedEdits.hpp>
#include <parameters/rows/ChangeListener.hpp>
#include <parameters/rows/MixedButton.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <QObject>
#include <QPointer>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// Has a row show whether the parameters that share its edits hold the same value. Where they differ, a button stands
/// for the editor until the user wants to edit. User-interface thread.
class TALO_EXPORT SharedRow : public QObject {
    Q_OBJECT

public:
    /// For a row without an editor, which becomes the parent. `objectName` is the object that it belongs to; `others`
    /// are the parameters of the others.
    SharedRow(QString objectName, std::vector<SharedParameter> others, ParameterRow& row);
    ~SharedRow() override;

protected:
    bool event(QEvent* event) override;

private:
    struct Choice {
        Kolt::EffectiveValue value;
        QStringList objects;
    };

    void refresh();
    void refreshLater();
    /// The values, each once, in the order of the objects.
    std::vector<Choice> choices() const;
    void cover(std::vector<Choice> const& choices);
    void edit();
    void setAll(int number);

    QString const objectName_;
    std::vector<SharedParameter> const others_;
    ParameterRow& row_;
    std::vector<std::unique_ptr<ChangeListener>> listeners_;
    bool refreshWaits_ = false;
    // Whether the user wanted the editor of values that differ.
    bool isOpened_ = false;
};

} // namespace Talo
