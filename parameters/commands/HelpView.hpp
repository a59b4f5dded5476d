#pragma once

#include <lattice/Parameter.hpp>
#include <QTextBrowser>
#include <tessera/Export.hpp>

namespace Talo {

/// Shows the help of one parameter, plain or rich, with its label as the title. Nothing is loaded: no picture, no
/// style, and a link is only shown. User-interface thread.
class TALO_EXPORT HelpView : public QTextBrowser {
    Q_OBJECT

public:
    /// A view that says how to get help.
    explicit HelpView(QWidget* parent = nullptr);
    ~HelpView() override;

    /// Shows what the parameter's properties say now.
    void showHelp(Kolt::VParameter const& parameter);

protected:
    /// Loads nothing.
    QVariant loadResource(int type, QUrl const& name) override;
    void changeEvent(QEvent* event) override;

private:
    void showTexts();

    QString html_;
};

} // namespace Talo
