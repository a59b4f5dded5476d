#pragma once

#include "PanelSides.hpp"

#include <deque>
#include <map>
#include <QAction>
#include <QScrollArea>

class BareEditor;
class QFrame;
class QLabel;

/// A value of a program of bare Qt: a plain structure.
struct BareValue {
    QString name;
    int kind = 0;
    int n = 0;
    int defaultN = 0;
    double number = 0;
};

/// The steps of such a program that can be undone.
class BareHistory {
public:
    /// Records an edit and names it in the menu.
    void record(QString const& name, QString const& text);
    /// What undoes the last step; the caller takes it over.
    QAction* makeAction(QObject* parent);

private:
    struct Step {
        QString name;
        QString before;
        QString after;
    };
    std::deque<Step> steps_;
    QAction* action_ = nullptr;
};

/// Rows of fixed height by kind below each other in a plain frame. They are made as they come into sight and deleted
/// when they are far, as in the panel. A dot beside a name marks a value that is not the default.
class BareForm : public QScrollArea {
    Q_OBJECT

public:
    /// The values and the history must outlive the form.
    BareForm(std::vector<BareValue>& values, BareHistory& history);

    int rowCount() const { return static_cast<int>(rows_.size()); }
    QWidget* editor(int number) const;
    /// Shows a value that the program changed.
    void showValue(int number);
    /// Shows the mark of a value, if it is not the default.
    void showDot(int number);
    /// Shows the stored value beside each editor that there is.
    void showRawValues();
    /// Shows only values whose name contains a text.
    void filter(QString const& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    struct Row {
        QWidget* widget = nullptr;
        QLabel* dot = nullptr;
        BareEditor* editor = nullptr;
        // Null until it is shown.
        QLabel* rawValue = nullptr;
    };

    void placeRows();
    void makeVisibleRows();
    void drop(std::map<int, Row>::iterator row);
    Row makeRow(int number);
    void showRawValue(Row const& row, int number) const;

    std::vector<BareValue>& values_;
    BareHistory& history_;
    // Of each row, and behind the last one.
    std::vector<int> tops_;
    std::vector<bool> shown_;
    int nameWidth_ = 0;
    QFrame* const content_;
    std::map<int, Row> rows_;
};
