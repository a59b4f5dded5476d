#include <panel/window/HelpMenu.hpp>

#include <panel/window/KeysDialog.hpp>
#include <QMessageBox>

namespace Panel {

HelpMenu::HelpMenu(QWidget& window) : QMenu(tr("&Help"), &window), window_(window) {
    addAction(tr("&Keys"), this, &HelpMenu::showKeys)->setObjectName(QStringLiteral("showKeys"));
    addAction(tr("&About the Talo panel"), this, &HelpMenu::showAbout)->setObjectName(QStringLiteral("about"));
}

HelpMenu::~HelpMenu() = default;

void HelpMenu::showKeys() {
    auto* const dialog = new KeysDialog(keysOf(window_), &window_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void HelpMenu::showAbout() {
    auto* const box =
        new QMessageBox(QMessageBox::NoIcon, tr("About the Talo panel"),
                        tr("Talo panel %1").arg(QStringLiteral(TALO_VERSION)), QMessageBox::Close, &window_);
    box->setObjectName(QStringLiteral("aboutBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(tr("The panel shows and edits the parameters of a network.\n\n"
                               "It is under the MIT licence; the file LICENSE has its text.\n\n"
                               "It runs with Qt %1.")
                                .arg(QString::fromLatin1(qVersion())));
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->open();
}

} // namespace Panel
