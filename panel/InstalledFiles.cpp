#include <panel/InstalledFiles.hpp>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Panel {

namespace {

QString firstThatExists(QStringList const& places) {
    QDir const program(QCoreApplication::applicationDirPath());
    for (auto const& place : places) {
        QFileInfo const file(program, place);
        if (file.exists())
            return QDir::cleanPath(file.absoluteFilePath());
    }
    return {};
}

} // namespace

QString defaultNetworkFile() {
    return firstThatExists({QStringLiteral("../../examples/networks/fractal.json"),
                            QStringLiteral(TALO_DATA_FROM_PROGRAM "/examples/networks/fractal.json")});
}

QString defaultPluginFile() {
    auto const besideProgram = QStringLiteral("qtalo_inputs.talo");
    auto const file = firstThatExists({besideProgram, QStringLiteral(TALO_PLUGINS_FROM_PROGRAM "/qtalo_inputs.talo")});
    return file.isEmpty() ? QDir(QCoreApplication::applicationDirPath()).filePath(besideProgram) : file;
}

QString checkerProgram() {
    return firstThatExists({QStringLiteral("talo_check")});
}

} // namespace Panel
