#pragma once

#include <memory>
#include <QScrollBar>
#include <QSize>
#include <QWidget>
#include <vector>

/// The numbers of the benchmark cases that the rows of a form have, in turn.
using Kinds = std::vector<int>;

/// A row of each kind of editor.
Kinds allKinds();
/// The kinds with these names, which must exist.
Kinds kindsNamed(std::vector<std::string> const& names);

/// A window with a form of many values, by the panel or in bare Qt. The values and their defaults exist from the start;
/// the window is made by `open`. Edits are steps of a history, whose next one the window's menu names.
class PanelSide {
public:
    virtual ~PanelSide() = default;
    /// Makes the window in this size, shows it and waits until it is painted.
    virtual void open(QSize const& size) = 0;
    /// Deletes the window.
    virtual void close() = 0;
    virtual QScrollBar* scrollBar() = 0;
    /// How many rows exist.
    virtual int rowCount() = 0;
    /// The editor of a value whose row is seen.
    virtual QWidget* editor(int number) = 0;
    /// The program changes a value to that which the kind calls the n-th, 0 or 1.
    virtual void change(int number, int n) = 0;
    /// The program changes all of many numbers that nobody is shown.
    virtual void changeNumbers(double number) = 0;
    /// Shows only values whose name contains a text.
    virtual void filter(QString const& text) = 0;
    /// What the values are now are their defaults from now on, so that no row has a mark.
    virtual void rememberDefaults() = 0;
    /// Shows the stored value beside each editor from now on.
    virtual void showRawValues() = 0;
    /// Shows the values once more in the same window.
    virtual void openSecondView() = 0;
    /// Shows the values of the n-th pool, 0 or 1, in which each value is what its kind calls the n-th.
    virtual void switchPool(int n) = 0;
};

/// The panel, with `count` parameters, and with `numbers` more in an object that is not shown.
std::unique_ptr<PanelSide> makePanelSide(Kinds const& kinds, int count, int numbers = 0);
/// The same, where each parameter has a value for each of two pools.
std::unique_ptr<PanelSide> makePoolSide(Kinds const& kinds, int count, int numbers = 0);
/// The same in bare Qt, made as late as the panel makes it.
std::unique_ptr<PanelSide> makeBareSide(Kinds const& kinds, int count, int numbers = 0);
