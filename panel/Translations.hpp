#pragma once

#include <memory>
#include <QString>
#include <QTranslator>
#include <vector>

/// The translations of what the user reads. The language is that of the default locale (QLocale()), so of the system
/// unless the program says otherwise; texts are English where there is no translation. User-interface thread.
namespace Panel {

/// Installs the translation FOLDER/NAME_LANGUAGE.qm for the default locale, until the returned object is destroyed. For
/// "de_AT" that is the file of de_AT or else that of de. Null where there is none, and where the user prefers English
/// to every language there is one for. A file that is no translation counts as none and gets a warning.
std::unique_ptr<QTranslator> installTranslation(QString const& folder, QString const& name);

/// The translations of the panel and of Qt's own texts, installed while the object lives. Needs the application object
/// and goes before it.
class Translations {
public:
    Translations();
    ~Translations();
    Translations(Translations const&) = delete;
    Translations& operator=(Translations const&) = delete;

private:
    std::vector<std::unique_ptr<QTranslator>> installed_;
};

} // namespace Panel
