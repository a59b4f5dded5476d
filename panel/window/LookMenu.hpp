#pragma once

#include <panel/look/Look.hpp>
#include <QActionGroup>
#include <QMenu>

namespace Panel {

/// The colours of the panel and the size of its texts, while it runs. User-interface thread.
class LookMenu : public QObject {
    Q_OBJECT

public:
    /// Shows what is chosen now. The menus belong to the parent, which shows them.
    explicit LookMenu(QWidget* parent);
    ~LookMenu() override;

    /// Light, dark, or as the system has it.
    QMenu* colours() const { return colours_; }
    /// Larger, smaller, usual.
    QMenu* textSizes() const { return textSizes_; }

    /// Chooses colours, as the menu does.
    void chooseTheme(Theme theme);
    /// Chooses a size of texts, as the menu does (setTextSize).
    void chooseTextSize(int steps);

private:
    void addTheme(Theme theme, char const* name, QString const& text);
    QAction* addSize(char const* name, QString const& text, QList<QKeySequence> const& keys);
    void showState();

    QMenu* const colours_;
    QMenu* const textSizes_;
    QActionGroup* const themes_;
    QAction* const larger_;
    QAction* const smaller_;
    QAction* const usual_;
};

} // namespace Panel
