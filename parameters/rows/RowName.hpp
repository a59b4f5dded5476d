#pragma once

#include <parameters/rows/ModifiedIndicator.hpp>
#include <parameters/rows/NameLabel.hpp>
#include <QWidget>
#include <tessera/Export.hpp>

class QGridLayout;

namespace Talo {

/// What is before the editor of a row: the name, a dot where the value is not the default, and a note below. The row of
/// a component of a vector has the component's short name there, and the first of them the vector's name before it.
/// User-interface thread.
class TALO_EXPORT RowName : public QWidget {
    Q_OBJECT

public:
    /// Has no name before `setName`.
    explicit RowName(QWidget* parent = nullptr);
    ~RowName() override;

    /// The label of the parameter, or of the component.
    NameLabel* label() const { return label_; }
    /// The label of the vector; null but for its first component.
    NameLabel* vectorLabel() const { return vectorLabel_; }
    /// Marks a value that is not the default; null until it first differed.
    ModifiedIndicator* indicator() const { return indicator_; }
    /// The line below the name; empty for none.
    QString note() const;

    /// Shows the name of the parameter.
    void setName(QString const& name);
    /// Shows a component's short name in place of the parameter's. With the name of the vector before it, unless that
    /// is empty. The note is to be set again.
    void setComponent(QString const& component, QString const& vector);
    /// Shows a line below the name; an empty one hides it. Components but the first have none.
    void setNote(QString const& note);
    /// Names the default in the tool tip of the dot.
    void setDefault(QString const& parameterName, QString const& defaultText);
    /// Shows the dot. REQUIRES: the default was set.
    void showModified();
    /// Hides the dot.
    void hideModified();

    /// The width of the column of names that the name needs, in pixels; 0 where there is only a component's short name.
    int columnNeed() const;
    /// Sets the width of the column of names, in pixels. A component's short name is behind it.
    void setColumnWidth(int width);
    /// How much room the name of a vector takes in a column of names of this width, up to the name of its first
    /// component; in pixels.
    static int vectorWidth(int column);
    /// The room that the vector's name takes now; 0 without one.
    int vectorWidth() const;

private:
    /// Leaves the room that nothing needs behind all that the name stands with.
    void leaveRestEmpty();
    /// Has the editor of a component stay in its place when the dot comes or goes.
    void keepIndicatorRoom();

    QGridLayout* const grid_;
    NameLabel* const label_;
    // Made when first needed: most rows never need them.
    NameLabel* vectorLabel_ = nullptr;
    ModifiedIndicator* indicator_ = nullptr;
    QLabel* noteLabel_ = nullptr;
    bool isComponent_ = false;
};

} // namespace Talo
