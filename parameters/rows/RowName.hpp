#pragma once

#include <parameters/rows/ModifiedIndicator.hpp>
#include <parameters/rows/NameLabel.hpp>
#include <QLayoutItem>
#include <tessera/Export.hpp>

namespace Talo {

/// What is before the editor of a row: the name, a dot where the value is not the default, and a note below. The row of
/// a component of a vector has the component's short name there, and the first of them the vector's name before it.
/// An item of the row's layout that arranges these widgets, which are the row's children: a widget of its own with a
/// layout would take a twentieth of a row's memory. User-interface thread.
class TALO_EXPORT RowName : public QLayoutItem {
public:
    /// Has no name before `setName`. The layout of the row owns it.
    explicit RowName(QWidget& row);
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

    /// What the widgets need; as wide as the column of names once that is set.
    QSize sizeHint() const override;
    /// The same.
    QSize minimumSize() const override { return sizeHint(); }
    /// As wide as that, and as high as the row.
    QSize maximumSize() const override;
    /// None: the editor takes what there is.
    Qt::Orientations expandingDirections() const override { return {}; }
    /// Places the widgets in this part of the row.
    void setGeometry(QRect const& geometry) override;
    /// The part of the row that they take.
    QRect geometry() const override { return geometry_; }
    /// Every row has a name.
    bool isEmpty() const override { return false; }

private:
    /// Whether a line is shown below the name.
    bool hasNote() const;
    /// The room for the dot and its distance to the name; 0 where there may be none.
    int indicatorRoom() const;
    /// The height of the line with the name.
    int lineHeight() const;
    void arrange(QRect const& contents);
    /// Puts a widget where it is in a row that is read from left to right.
    void place(QWidget* widget, QRect const& leftToRight) const;

    QWidget& row_;
    NameLabel* const label_;
    // Made when first needed: most rows never need them.
    NameLabel* vectorLabel_ = nullptr;
    ModifiedIndicator* indicator_ = nullptr;
    QLabel* noteLabel_ = nullptr;
    bool isComponent_ = false;
    // Of the column of names; negative before it was set, and for a component.
    int width_ = -1;
    QRect geometry_;
};

} // namespace Talo
