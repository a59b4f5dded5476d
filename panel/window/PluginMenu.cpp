#include <panel/window/PluginMenu.hpp>

#include <lattice/InputRegistry.hpp>
#include <QFileDialog>
#include <QMessageBox>

namespace Panel {

PluginMenu::PluginMenu(Plugins& plugins, QWidget& window)
    : QMenu(tr("&Plug-ins"), &window),
      plugins_(plugins),
      statusLabel_(new QLabel),
      loadAction_(addAction(tr("&Load..."), this, &PluginMenu::askForPlugin)),
      unloadAction_(addAction(tr("&Unload"), this, &PluginMenu::unload)),
      reloadAction_(addAction(tr("&Reload"), this, &PluginMenu::reload)) {
    loadAction_->setObjectName(QStringLiteral("load"));
    unloadAction_->setObjectName(QStringLiteral("unload"));
    reloadAction_->setObjectName(QStringLiteral("reload"));
    update();
}

PluginMenu::~PluginMenu() = default;

void PluginMenu::update() {
    auto const creators = Kolt::InputRegistry::theRegistry().entries().size();
    auto const loaded = plugins_.loadedFiles().size();
    unloadAction_->setEnabled(loaded > 0);
    reloadAction_->setEnabled(!plugins_.knownFiles().isEmpty());
    statusLabel_->setText(tr("Plug-ins: %1, kinds of editors: %2").arg(loaded).arg(creators));
}

void PluginMenu::askForPlugin() {
    auto const file = QFileDialog::getOpenFileName(parentWidget(), tr("Load a plug-in"), QString(),
                                                   tr("Plug-ins (*.talo);;All files (*)"));
    if (file.isEmpty() || !isWanted(file))
        return;
    QString error;
    if (!plugins_.load(file, &error, Plugins::Trust::Anyway))
        emit failed(tr("The plug-in cannot be loaded"), error);
}

bool PluginMenu::isWanted(QString const& file) {
    auto const problem = plugins_.problemOf(file);
    return problem.isEmpty() ||
           QMessageBox::warning(parentWidget(), tr("Load a plug-in"),
                                tr("%1\n\nLoad it anyway? Unsaved values may be lost.").arg(problem),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

void PluginMenu::unload() {
    QString error;
    if (plugins_.unload(&error))
        emit reported(tr("The plug-ins were unloaded."));
    else
        emit failed(tr("The plug-ins cannot be unloaded"), error);
}

void PluginMenu::reload() {
    QString error;
    if (plugins_.reload(&error))
        emit reported(tr("The plug-ins were loaded again."));
    else
        emit failed(tr("The plug-ins cannot be loaded again"), error);
}

} // namespace Panel
