#pragma once

#include <lattice/Parameter.hpp>
#include <parameters/commands/HelpView.hpp>
#include <QDockWidget>

namespace Panel {

/// The side area with the help of one parameter; hidden until help is asked for. User-interface thread.
class HelpDock : public QDockWidget {
    Q_OBJECT

public:
    explicit HelpDock(QWidget* parent = nullptr);
    ~HelpDock() override;

    /// Shows the help of the parameter, and the dock if it is hidden.
    void showHelp(Kolt::ParameterPtr const& parameter);
    Talo::HelpView* view() const { return view_; }

private:
    Talo::HelpView* const view_;
};

} // namespace Panel
