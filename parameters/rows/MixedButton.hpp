#pragma once

#include <QToolButton>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// What a row shows in place of the editor where the values differ: it says "mixed". A click asks for the editor; its
/// menu, which the down key opens as well, has the values. User-interface thread.
class TALO_EXPORT MixedButton : public QToolButton {
    Q_OBJECT

public:
    /// One of the values.
    struct Choice {
        QString text;        ///< the value
        QStringList objects; ///< the objects that have it
    };

    /// Says nothing before `setChoices`.
    explicit MixedButton(QWidget* parent = nullptr);
    ~MixedButton() override;

    /// Shows these values in the menu and in the tool tip, in the language of now. The name is for screen readers.
    void setChoices(QString const& parameterName, std::vector<Choice> const& choices);

signals:
    /// The user wants to edit the value.
    void editRequested();
    /// The user wants all objects to have the value of this number.
    void chosen(int number);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace Talo
