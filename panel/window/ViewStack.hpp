#pragma once

#include <panel/window/ObjectView.hpp>
#include <parameters/EditorChoice.hpp>
#include <QMainWindow>
#include <QMap>
#include <QStackedWidget>
#include <vector>

namespace Panel {

/// The views of objects in a window: one is shown in the middle, and the ones shown last are kept; additional views are
/// docks. User-interface thread.
class ViewStack : public QStackedWidget {
    Q_OBJECT

public:
    /// `pools` must outlive the views; `window` takes the docks.
    ViewStack(Kolt::ValuePoolSource& pools, QMainWindow& window);
    ~ViewStack() override;

    /// The view in the middle; null for none.
    ObjectView* currentView() const;
    /// A view of the object that can be seen; null for none.
    ObjectView* visibleView(Kolt::ObjectPtr const& object) const;
    /// All views, those in docks included.
    std::vector<ObjectView*> views() const;

    /// Shows an object in the middle. `kind` says what the object is for.
    void showObject(Kolt::ObjectPtr const& object, QString const& kind);
    /// Shows several objects in the middle, in one form; a single one as `showObject` does. That form is not kept when
    /// another object is shown. `kind` is that of the first. REQUIRES: at least one object.
    void showObjects(std::vector<Kolt::ObjectPtr> const& objects, QString const& kind);
    /// Shows the current object once more, in a dock of its own. Null if there is none.
    ObjectView* addView() { return addViewOn(nullptr); }
    /// Adds a view that has a pool of its own; null for the pool of the window. Null if no object is shown.
    ObjectView* addViewOn(Kolt::PoolPtr const& pool);
    /// The pools that views can have as their own.
    std::vector<Kolt::PoolPtr> const& pools() const { return offeredPools_; }
    /// Offers these pools to views that are added from now on.
    void setPools(std::vector<Kolt::PoolPtr> const& pools) { offeredPools_ = pools; }
    /// Closes all views, docks included. They are deleted as soon as control returns to the event loop.
    void closeViews();
    /// Deletes all views at once, before what they show is deleted.
    void deleteViews();

    /// Shows the parameters that the words find, and only those that differ from their defaults if that is wanted.
    void setFilter(QString const& words, bool onlyChanged);
    void setRawValuesShown(bool shown);
    bool rawValuesShown() const { return rawValuesShown_; }
    void setAdvancedShown(bool shown);
    /// The folded sections of the objects, by the objects' names. Those of an object are folded in all its views.
    QMap<QString, QStringList> const& foldedSections() const { return folded_; }
    void setFoldedSections(QMap<QString, QStringList> const& folded);
    /// Folds or opens the sections of the current view.
    void foldAllSections(bool folded);
    /// Who edits which parameter in all views. Closing the views ends the choices for single parameters.
    Talo::EditorChoice& editorChoice() { return editorChoice_; }
    /// Shows the pool that was chosen in the window.
    void showPool();
    void showDefaults();
    void closeEditors();
    void openEditors();

signals:
    void editorOpened(Kolt::ParameterPtr const& parameter, QWidget* editor);
    /// The user wants to read a parameter's help.
    void helpRequested(Kolt::ParameterPtr const& parameter);
    /// A command did nothing, for this reason: a sentence.
    void refused(QString const& reason);

private:
    /// Has the sections of the other views of the same object as they are in this one.
    void followFolding(ObjectView const& view);
    /// Gives a new dock half of the form's room, or its share of what the docks beside it have. Where that is too
    /// little, it becomes a tab.
    void placeBesideForm(QDockWidget& dock);
    ObjectView* makeView(std::vector<Kolt::ObjectPtr> const& objects, QString const& kind, Kolt::ValuePoolSource& pools,
                         QWidget* parent);
    /// Deletes the form of several objects, if there is one.
    void dropSeveral();

    Kolt::ValuePoolSource& pools_;
    QMainWindow& window_;
    std::vector<Kolt::PoolPtr> offeredPools_;
    Talo::EditorChoice editorChoice_;
    QString filter_;
    bool onlyChanged_ = false;
    bool rawValuesShown_ = false;
    bool advancedShown_ = false;
    QMap<QString, QStringList> folded_;
};

} // namespace Panel
