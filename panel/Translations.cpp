#include <panel/Translations.hpp>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>

// The resources are in static libraries, and this must be called outside of any namespace.
static void makeResourcesKnown() {
    Q_INIT_RESOURCE(talo_fractal_translations);
    Q_INIT_RESOURCE(talo_panel_parts_translations);
}

namespace Panel {

namespace {

/// The file of a language, "de_AT", or of the same one without its last parts; empty when there is none.
QString findFile(QString const& folder, QString const& name, QString language) {
    while (!language.isEmpty()) {
        auto const file = QStringLiteral("%1/%2_%3.qm").arg(folder, name, language);
        if (QFileInfo::exists(file))
            return file;
        language.truncate(qMax(0, language.lastIndexOf(QLatin1Char('_'))));
    }
    return {};
}

} // namespace

std::unique_ptr<QTranslator> installTranslation(QString const& folder, QString const& name) {
    auto const languages = QLocale().uiLanguages();
    for (auto language : languages) {
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        auto const plain = language.section(QLatin1Char('_'), 0, 0);
        // The texts themselves.
        if (plain == QLatin1String("en") || plain == QLatin1String("C"))
            return nullptr;
        auto const file = findFile(folder, name, language);
        if (file.isEmpty())
            continue;
        auto translator = std::make_unique<QTranslator>();
        if (!translator->load(file)) {
            qWarning("%s is no translation.", qUtf8Printable(file));
            return nullptr;
        }
        QCoreApplication::installTranslator(translator.get());
        return translator;
    }
    return nullptr;
}

Translations::Translations() {
    makeResourcesKnown();
    installed_.push_back(
        installTranslation(QLibraryInfo::location(QLibraryInfo::TranslationsPath), QStringLiteral("qtbase")));
    for (auto const* const name : {"talo_parameters", "talo_fractal", "talo_panel"})
        installed_.push_back(installTranslation(QStringLiteral(":/translations"), QLatin1String(name)));
}

Translations::~Translations() = default;

} // namespace Panel
