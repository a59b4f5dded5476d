#pragma once

#include <parameters/ParameterPanel.hpp>
#include <parameters/rows/RowArea.hpp>
#include <QWidget>

namespace Panel {

/// One object in the window, or several in one form: the name and what it is for above the parameters. Any number of
/// views may show one object.
///
/// The view refers to the objects weakly. User-interface thread.
class ObjectView : public QWidget {
    Q_OBJECT

public:
    /// `kind` says what the objects are for, and may be empty. `pools` must outlive the view. REQUIRES: at least one
    /// object.
    ObjectView(std::vector<Kolt::ObjectPtr> const& objects, QString const& kind, Kolt::ValuePoolSource& pools,
               QWidget* parent = nullptr);
    ~ObjectView() override;

    /// The shown object, the first of several; null if it was deleted.
    Kolt::ObjectPtr object() const { return panel_->object(); }
    /// Whether the form is that of several objects.
    bool showsSeveral() const { return showsSeveral_; }
    QString const& kind() const { return kind_; }
    Talo::ParameterPanel* panel() const { return panel_; }
    /// The rows that exist; all of them where the object has few parameters and the view was shown.
    std::vector<Talo::ParameterRow*> rows() const { return panel_->rowArea()->rows(); }
    /// The row of a parameter by its whole name, made if it does not exist; null if there is no such parameter.
    Talo::ParameterRow* row(QString const& parameterName) const { return panel_->rowArea()->row(parameterName); }

    /// Puts a widget at the end of the line above the parameters; the view takes it over.
    void addToHead(QWidget* widget);

private:
    QString const kind_;
    bool const showsSeveral_;
    QWidget* const head_;
    Talo::ParameterPanel* const panel_;
};

} // namespace Panel
