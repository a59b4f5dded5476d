#pragma once

#include "ModalCloser.hpp"
#include "ValueRecord.hpp"
#include "WalkEvent.hpp"
#include "WalkHost.hpp"
#include "WalkUser.hpp"

#include <memory>
#include <optional>
#include <panel/window/MainWindow.hpp>
#include <QJsonObject>
#include <set>
#include <string>
#include <vector>

/// Uses a panel at random: mouse, wheel, keys and drops anywhere in any window, and sometimes what the host does
/// (WalkHost). Where time is virtual (VirtualTime) the events alone decide what happens; the thread that computes a
/// picture is waited for after each event.
class RandomWalk {
public:
    /// Files are written to and read from `folder`, except the network's file. Each event writes a line to the log; an
    /// empty name means none. The panel must outlive the walk.
    RandomWalk(Panel::MainWindow& window, Panel::Plugins& plugins, QString const& folder, QString const& logFile = {});
    ~RandomWalk();

    /// Does one act, and returns when it is handled.
    void act(WalkEvent const& event);
    /// Brings the panel to rest: releases the mouse, closes popups and dialogs, moves the focus out of the fields, and
    /// ends all computing. Returns the reason if the panel does not come to rest, otherwise an empty text.
    std::string settle();
    /// The values that neither an undo step nor a write of the host explains.
    std::vector<std::string> unexplained() const;
    /// Undoes and redoes all steps. Returns the parameters that did not return to their first value, or did not come
    /// back to their last.
    std::vector<std::string> goBackAndForth();
    /// Waits for the fine preview and compares it with the values. Returns what is wrong; an empty text if nothing is,
    /// if the preview takes too long, or if the render action has shown its own picture since the last change.
    std::string findPreviewFault();
    /// Opens the network again, without a history.
    void beginAnew();

private:
    void followNetwork();
    void writeAsHost(QString const& name, QString const& text);
    /// Wait until no coarse preview is computed, or until the preview is fine; false if that does not happen.
    bool awaitCoarsePreview();
    bool awaitFinePreview();
    /// Waits until no picture is computed, so that the thread that computes does not decide what the walk does next.
    bool awaitPictures();
    /// Shows the window and makes it active; false if the window system does not.
    bool bringToFront();
    /// The parameters with another value, or another pool that has a value, than before all steps.
    std::vector<std::string> changesSinceStart() const;
    QJsonObject values() const;

    Panel::MainWindow& window_;
    Panel::Plugins& plugins_;
    QString const file_;
    WalkDice dice_;
    WalkUser user_;
    WalkHost host_;
    ModalCloser closer_;
    std::unique_ptr<ValueRecord> record_;
    std::vector<std::string> unexplainedBefore_;
    // The values before all steps.
    QJsonObject start_;
    // "object.parameter".
    std::set<QString> writtenByHost_;
    QMetaObject::Connection following_;
    // The changes of the preview when the render action computed a picture last.
    std::optional<unsigned long> renderedAt_;
};
