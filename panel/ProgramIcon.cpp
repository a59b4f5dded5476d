#include <panel/ProgramIcon.hpp>

#include <QDir>
#include <QString>

// Outside of any namespace, as the macro requires.
static void makeIconsKnown() {
    Q_INIT_RESOURCE(talo_panel_parts_icons);
}

namespace Panel {

QIcon programIcon() {
    makeIconsKnown();
    QIcon icon;
    QDir const folder(QStringLiteral(":/icons"));
    auto const names = folder.entryList();
    for (auto const& name : names)
        icon.addFile(folder.filePath(name));
    return icon;
}

} // namespace Panel
