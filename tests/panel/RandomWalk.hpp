#pragma once

#include "ModalCloser.hpp"

#include <map>
#include <panel/window/MainWindow.hpp>
#include <QJsonObject>
#include <random>
#include <set>
#include <string>
#include <vector>

/// Uses a panel at random: mouse, wheel and keys anywhere in any window, and sometimes the choice of an object or pool,
/// another filter, a write by the host, or an unload of a plug-in. The seed determines the events.
class RandomWalk {
public:
    /// Files are written to and read from `folder`, except the network's file. The panel must outlive the walk.
    RandomWalk(Panel::MainWindow& window, Panel::Plugins& plugins, QString const& folder, unsigned seed);

    /// Sends one event and returns when Qt has handled it.
    void step();
    /// Brings the panel to rest: releases the mouse, closes popups and dialogs, moves the focus out of the fields, and
    /// ends all computing. Returns the reason if the panel does not come to rest, otherwise an empty text.
    std::string settle();
    /// Undoes and redoes all steps. Returns the parameters that did not return to their first value, or did not come
    /// back to their last; those that the host wrote are skipped.
    std::vector<std::string> goBackAndForth();
    /// Opens the network again, without a history.
    void beginAnew();

private:
    using Action = void (RandomWalk::*)();

    unsigned below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }
    template <typename List>
    auto const& oneOf(List const& list) {
        return *(std::begin(list) + below(static_cast<std::size_t>(std::end(list) - std::begin(list))));
    }
    /// A visible widget to use the mouse on; null if there is none.
    QWidget* target();
    QList<QWidget*> candidates();
    void useMouse();
    void press(QWidget& widget);
    void moveOrRelease();
    /// Interferes while the mouse holds a row: the host notifies the row's value, or one of the row's buttons is
    /// pressed.
    void disturb(Talo::ParameterRow& row);
    void turnWheel();
    void pressKey();
    void useHost();

    void chooseObject();
    void choosePool();
    void filter();
    void write();
    void toggleRawValues();
    void reloadPlugins();
    void showDock();
    void closeView();
    void resize();
    /// Shows the window and makes it active; false if the window system does not.
    bool bringToFront();
    void followNetwork();
    std::vector<std::string> differences(QJsonObject const& expected, char const* when) const;
    QJsonObject values() const;

    Panel::MainWindow& window_;
    Panel::Plugins& plugins_;
    QString const file_;
    std::mt19937 random_;
    ModalCloser closer_;
    // Where the mouse button is held down.
    QPointer<QWidget> held_;
    Qt::MouseButton button_ = Qt::NoButton;
    // The values before all steps.
    QJsonObject start_;
    // "object.parameter".
    std::set<QString> writtenByHost_;
    // Texts that a parameter had, by its name.
    std::map<QString, std::vector<std::string>> texts_;
    QMetaObject::Connection following_;
};
