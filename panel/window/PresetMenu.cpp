#include <panel/window/PresetMenu.hpp>

#include <panel/window/MessageTexts.hpp>
#include <parameters/commands/ObjectValues.hpp>
#include <QFile>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <utility>

namespace Panel {

PresetMenu::PresetMenu(Document& document, std::function<Talo::ParameterPanel*()> panel, QWidget* parent)
    : QMenu(tr("Prese&ts"), parent), document_(document), panel_(std::move(panel)) {
    setObjectName(QStringLiteral("presets"));
    connect(this, &QMenu::aboutToShow, this, &PresetMenu::fill);
    connect(&document, &Document::opened, this, [this] { file_ = presetFile(); });
    connect(&document, &Document::saved, this, &PresetMenu::takeAlong);
}

PresetMenu::~PresetMenu() = default;

PresetMenu::Subject PresetMenu::subject() const {
    auto const* const panel = panel_();
    auto const object = panel ? panel->object() : nullptr;
    if (!object || !document_.network())
        return {};
    return {object, panel->pool(), Talo::PresetScope::of(*document_.network(), object)};
}

QString PresetMenu::presetFile() const {
    return Talo::PresetFile::fileFor(document_.path());
}

void PresetMenu::takeAlong() {
    auto const before = std::exchange(file_, presetFile());
    if (file_ == before || !QFile::exists(before) || QFileInfo::exists(file_) || QFileInfo(file_).isSymLink())
        return;
    QFile source(before);
    if (!source.copy(file_))
        reportFailure(tr("The presets could not be copied to %1: %2").arg(file_, source.errorString()));
}

void PresetMenu::fill() {
    clear();
    // That only takes a menu out.
    qDeleteAll(findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    auto const shown = subject();
    Talo::PresetFile presets(presetFile());
    auto const reason = presets.read();
    auto* const save = addAction(tr("&Save as preset..."), this, &PresetMenu::askAndSave);
    save->setObjectName(QStringLiteral("savePreset"));
    save->setEnabled(shown.object && !presets.file().isEmpty());
    if (!shown.object)
        return;
    if (presets.file().isEmpty())
        addAction(tr("Presets are kept beside the network file. Save the network first."))->setEnabled(false);
    else if (!reason.isEmpty())
        // Save tells the reason; a dialog would come over the menu.
        addAction(tr("The file with the presets cannot be read."))->setEnabled(false);
    else
        addPresets(presets, shown.scope);
}

void PresetMenu::addPresets(Talo::PresetFile const& presets, Talo::PresetScope const& scope) {
    auto const names = presets.names(scope);
    if (names.isEmpty())
        return;
    auto* const removeMenu = addMenu(tr("Re&move preset"));
    removeMenu->setObjectName(QStringLiteral("removePreset"));
    addSeparator();
    for (auto const& name : names) {
        auto const text = menuText(name, fontMetrics());
        addAction(text, this, [this, name] { apply(name); })->setData(name);
        removeMenu->addAction(text, this, [this, name] { remove(name); })->setData(name);
    }
}

void PresetMenu::apply(QString const& name) {
    emit commitRequested();
    auto const shown = subject();
    Talo::PresetFile presets(presetFile());
    auto const reason = presets.read();
    if (!reason.isEmpty())
        return reportFailure(reason);
    auto const* const preset = shown.object ? presets.find(shown.scope, name) : nullptr;
    if (!preset)
        return reportFailure(tr("There is no preset “%1” any more.").arg(name));
    auto const objectName = QString::fromStdString(shown.object->Name());
    auto const refused = Talo::applyObjectValues(shown.object, shown.pool, preset->values);
    emit reported(tr("Applied the preset “%1” to %2.").arg(name, objectName));
    if (!refused.isEmpty())
        emit failed(tr("Not all values of the preset could be applied"), refused.join(QLatin1Char('\n')));
}

void PresetMenu::askAndSave() {
    emit commitRequested();
    bool isGiven = false;
    auto const name = QInputDialog::getText(parentWidget()->window(), tr("Save as preset"), tr("&Name of the preset:"),
                                            QLineEdit::Normal, QString(), &isGiven)
                          .trimmed();
    auto const shown = subject();
    if (!isGiven || !shown.object)
        return;
    if (name.isEmpty())
        return reportFailure(tr("A preset needs a name."));
    Talo::PresetFile presets(presetFile());
    auto reason = presets.read();
    if (reason.isEmpty()) {
        if (presets.find(shown.scope, name) && !mayReplace(name))
            return;
        reason = presets.put({shown.scope, name, Talo::objectValues(*shown.object, shown.pool)});
    }
    if (!reason.isEmpty())
        return reportFailure(reason);
    emit reported(tr("Saved the preset “%1” in %2.").arg(name, presets.file()));
}

bool PresetMenu::mayReplace(QString const& name) {
    QMessageBox box(QMessageBox::Question, tr("Save as preset"), tr("There is a preset “%1” already.").arg(name),
                    QMessageBox::Cancel, parentWidget()->window());
    // The name is a text of the user.
    box.setTextFormat(Qt::PlainText);
    auto* const replace = box.addButton(tr("&Replace it"), QMessageBox::AcceptRole);
    replace->setObjectName(QStringLiteral("replacePreset"));
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == replace;
}

void PresetMenu::remove(QString const& name) {
    Talo::PresetFile presets(presetFile());
    auto const reason = presets.remove(subject().scope, name);
    if (!reason.isEmpty())
        return reportFailure(reason);
    emit reported(tr("Removed the preset “%1”.").arg(name));
}

void PresetMenu::reportFailure(QString const& reason) {
    emit failed(tr("Presets"), reason);
}

} // namespace Panel
