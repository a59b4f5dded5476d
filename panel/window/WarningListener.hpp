#pragma once

#include <lattice/ActionNotifier.hpp>
#include <QObject>

namespace Panel {

/// Hears the host's warnings and passes them on as a signal; besides, each goes to standard error as one line. Made
/// and destroyed on the user-interface thread; warnings may come on any thread.
class WarningListener : public QObject, private Kolt::VActionNotifier {
    Q_OBJECT

public:
    explicit WarningListener(QObject* parent = nullptr);
    ~WarningListener() override;

signals:
    /// Emitted on the thread that warns.
    void warned(QString const& text);

private:
    void onWarning(std::string const& text) override;
};

} // namespace Panel
