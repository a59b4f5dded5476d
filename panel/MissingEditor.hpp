#pragma once

#include <lattice/InputCreator.hpp>
#include <QLabel>

namespace Panel {

/// Stands where a parameter's editor would be when none can be made: names the type and the preferences of the
/// parameter and says that no editor is registered for it.
class MissingEditor : public QLabel {
    Q_OBJECT

public:
    explicit MissingEditor(Kolt::VParameter const& parameter, QWidget* parent = nullptr);
    ~MissingEditor() override;
};

} // namespace Panel
