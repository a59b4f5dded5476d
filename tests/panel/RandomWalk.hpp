#pragma once

#include "ModalCloser.hpp"

#include <map>
#include <panel/window/MainWindow.hpp>
#include <QJsonObject>
#include <random>
#include <set>
#include <string>
#include <vector>

/// Uses a panel at random, as somebody would who does not know what he does: mouse, wheel and keys at any place of any
/// window, and now and then a choice of an object or pool, another filter, a write of the host, a plug-in that is
/// unloaded. What comes is decided by the seed.
class RandomWalk {
public:
    /// `folder` is where files are written and read, but for that of the network. The panel must outlive the walk.
    RandomWalk(Panel::MainWindow& window, Panel::Plugins& plugins, QString const& folder, unsigned seed);

    /// One event. It is over when Qt has handled it.
    void step();
    /// The panel comes to rest: nothing is held, popups and dialogs are closed, the focus leaves the fields, and
    /// whatever is being computed ends. The reason where it does not come to rest.
    std::string settle();
    /// Takes all steps back and makes them again. Says in which parameters the panel was not where it began, or did
    /// not come back to where it was; those that the host wrote are left out.
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
    /// A widget that can be seen and that the mouse may be used on; null when there is none.
    QWidget* target();
    QList<QWidget*> candidates();
    void useMouse();
    void press(QWidget& widget);
    void moveOrRelease();
    /// The host tells the value of the row that the mouse holds, or one of the row's buttons is pressed meanwhile.
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
