#include <panel/CommandLine.hpp>

#include <panel/gallery/GalleryState.hpp>
#include <QCommandLineParser>
#include <QLocale>
#include <QRegularExpression>

namespace Panel {

namespace {

// The one list of the options, for parsing and for the help.
class Options {
public:
    Options() {
        parser.setApplicationDescription(
            CommandLine::tr("A control panel for networks of objects with typed parameters."));
        parser.addOptions({help, version, object, pool, set, rawValues, screenshot, size, palette, rightToLeft, scale,
                           values, gallery, language, noSession, listCreators, plugin, onlyPlugin, state});
        parser.addPositionalArgument(QStringLiteral("NETWORK.json"),
                                     CommandLine::tr("The network to open; examples/networks/fractal.json by default."),
                                     QStringLiteral("[NETWORK.json]"));
    }

    QCommandLineOption const help{{QStringLiteral("h"), QStringLiteral("help")},
                                  CommandLine::tr("Prints this help and ends.")};
    QCommandLineOption const version{{QStringLiteral("v"), QStringLiteral("version")},
                                     CommandLine::tr("Prints the version and ends.")};
    QCommandLineOption const object{QStringLiteral("object"), CommandLine::tr("Shows the object of this name."),
                                    CommandLine::tr("NAME")};
    QCommandLineOption const pool{QStringLiteral("pool"), CommandLine::tr("Chooses the value pool of this name."),
                                  CommandLine::tr("NAME")};
    QCommandLineOption const set{
        QStringLiteral("set"), CommandLine::tr("Sets a value as the host would, in the chosen pool. May be repeated."),
        CommandLine::tr("OBJECT.PARAMETER=TEXT")};
    QCommandLineOption const rawValues{QStringLiteral("raw"),
                                       CommandLine::tr("Shows the raw values beside the editors.")};
    QCommandLineOption const screenshot{
        QStringLiteral("screenshot"), CommandLine::tr("Draws the panel into an image file and ends; needs no display."),
        CommandLine::tr("FILE.png")};
    QCommandLineOption const size{QStringLiteral("size"),
                                  CommandLine::tr("Sets the size of the window, as in 1200x800."),
                                  CommandLine::tr("WIDTHxHEIGHT")};
    QCommandLineOption const palette{QStringLiteral("palette"), CommandLine::tr("Uses light or dark colours."),
                                     CommandLine::tr("light|dark")};
    QCommandLineOption const scale{QStringLiteral("scale"),
                                   CommandLine::tr("Scales the panel by this factor, from 0.5 to 4."),
                                   CommandLine::tr("FACTOR")};
    QCommandLineOption const rightToLeft{QStringLiteral("right-to-left"),
                                         CommandLine::tr("Lays the panel out from right to left.")};
    QCommandLineOption const language{QStringLiteral("language"),
                                      CommandLine::tr("Uses this language instead of the system's, as in de or fr."),
                                      CommandLine::tr("LANGUAGE")};
    QCommandLineOption const gallery{
        QStringLiteral("gallery"),
        CommandLine::tr("Shows each kind of editor twice on one value, in every state, instead of a network.")};
    QCommandLineOption const state{
        QStringLiteral("state"),
        CommandLine::tr(
            "Shows this state of the gallery first: normal, per-pool, dead-parameter, no-pool or wrong-type."),
        CommandLine::tr("STATE")};
    QCommandLineOption const noSession{QStringLiteral("no-session"),
                                       CommandLine::tr("Does not restore or save the session.")};
    QCommandLineOption const values{QStringLiteral("values"), CommandLine::tr("Prints all values as JSON and ends.")};
    QCommandLineOption const listCreators{
        QStringLiteral("list-creators"),
        CommandLine::tr(
            "Prints the value type, name and preference set of each input creator, separated by tabs, and ends.")};
    QCommandLineOption const plugin{
        QStringLiteral("plugin"),
        CommandLine::tr("Loads this plug-in file as well. Those beside qtalo_inputs.talo, and in the folders that "
                        "TALO_PLUGIN_PATH names, are loaded anyway. May be repeated."),
        CommandLine::tr("FILE")};
    QCommandLineOption const onlyPlugin{
        QStringLiteral("only-plugin"),
        CommandLine::tr("Loads this plug-in file instead of those that are found. May be repeated."),
        CommandLine::tr("FILE")};
    QCommandLineParser parser;
};

/// Reads one command line. Each function returns why it refuses the arguments, or an empty text.
class Reader {
    Q_DECLARE_TR_FUNCTIONS(Panel::CommandLine)

public:
    QString read(QStringList const& arguments) {
        if (!options.parser.parse(arguments))
            return parser.errorText();
        readTexts();
        readSwitches();
        for (auto const check :
             {&Reader::checkNetwork, &Reader::checkValues, &Reader::readSettings, &Reader::readSize,
              &Reader::readPalette, &Reader::readScale, &Reader::checkLanguage, &Reader::checkGallery}) {
            auto const reason = (this->*check)();
            if (!reason.isEmpty())
                return reason;
        }
        return {};
    }

    CommandLine line;

private:
    void readTexts() {
        line.network = parser.positionalArguments().value(0);
        line.object = parser.value(options.object);
        line.pool = parser.value(options.pool);
        line.screenshot = parser.value(options.screenshot);
        line.plugins = parser.values(options.plugin);
        line.onlyPlugins = parser.values(options.onlyPlugin);
        line.language = parser.value(options.language);
        line.state = parser.value(options.state);
    }
    void readSwitches() {
        line.rightToLeft = parser.isSet(options.rightToLeft);
        line.gallery = parser.isSet(options.gallery);
        line.session = !parser.isSet(options.noSession);
        line.rawValues = parser.isSet(options.rawValues);
        line.listCreators = parser.isSet(options.listCreators);
        line.values = parser.isSet(options.values);
        line.help = parser.isSet(options.help);
        line.version = parser.isSet(options.version);
    }
    QString checkNetwork() {
        auto const networks = parser.positionalArguments();
        if (networks.contains(QString()))
            return tr("The name of a network is empty.");
        return networks.size() > 1 ? tr("More than one network is named: %1.").arg(networks.join(QLatin1String(", ")))
                                   : QString();
    }
    // An empty text is a slip of a script.
    QString checkValues() {
        for (auto const* const option : {&options.object, &options.pool, &options.screenshot, &options.plugin,
                                         &options.onlyPlugin, &options.language, &options.state}) {
            if (parser.values(*option).contains(QString()))
                return tr("The option --%1 needs a value.").arg(option->names().constFirst());
        }
        return {};
    }
    QString readSettings() {
        auto const settings = parser.values(options.set);
        for (auto const& setting : settings) {
            int const equals = setting.indexOf(QLatin1Char('='));
            if (equals < 0)
                return tr("--set wants OBJECT.PARAMETER=TEXT and found \"%1\".").arg(setting);
            line.settings.push_back({setting.left(equals), setting.mid(equals + 1)});
        }
        return {};
    }
    QString readSize() {
        if (!parser.isSet(options.size))
            return {};
        QRegularExpression const pattern(QStringLiteral("\\A([1-9][0-9]{1,3})x([1-9][0-9]{1,3})\\z"));
        auto const match = pattern.match(parser.value(options.size));
        if (!match.hasMatch())
            return tr("--size wants a size as in 1200x800 and found \"%1\".").arg(parser.value(options.size));
        line.size = {match.captured(1).toInt(), match.captured(2).toInt()};
        return {};
    }
    QString readPalette() {
        if (!parser.isSet(options.palette))
            return {};
        auto const name = parser.value(options.palette);
        if (name != QLatin1String("light") && name != QLatin1String("dark"))
            return tr("--palette wants light or dark and found \"%1\".").arg(name);
        line.theme = name == QLatin1String("dark") ? Theme::Dark : Theme::Light;
        return {};
    }
    QString readScale() {
        if (!parser.isSet(options.scale))
            return {};
        line.scale = parser.value(options.scale);
        bool isNumber = false;
        double const factor = line.scale.toDouble(&isNumber);
        return isNumber && factor >= 0.5 && factor <= 4.0
                   ? QString()
                   : tr("--scale wants a factor from 0.5 to 4 and found \"%1\".").arg(line.scale);
    }
    QString checkLanguage() {
        return !line.language.isEmpty() && QLocale(line.language).language() == QLocale::C
                   ? tr("--language wants a language as in de or fr and found \"%1\".").arg(line.language)
                   : QString();
    }
    // The gallery would ignore what is asked of a network.
    QString checkGallery() {
        if (!line.gallery)
            return line.state.isEmpty() ? QString() : tr("--state needs --gallery.");
        for (auto const* const option : {&options.object, &options.pool, &options.set, &options.values}) {
            if (parser.isSet(*option))
                return tr("The gallery opens no network, so --%1 cannot be used with --gallery.")
                    .arg(option->names().constFirst());
        }
        if (!line.network.isEmpty())
            return tr("The gallery opens no network, so %1 cannot be used with --gallery.").arg(line.network);
        return line.state.isEmpty() || findGalleryState(line.state)
                   ? QString()
                   : tr("--state wants one of %1 and found \"%2\".").arg(galleryStateKeys(), line.state);
    }

    Options options;
    QCommandLineParser const& parser = options.parser;
};

} // namespace

std::optional<CommandLine> CommandLine::parse(QStringList const& arguments, QString& error) {
    Reader reader;
    error = reader.read(arguments);
    return error.isEmpty() ? std::make_optional(reader.line) : std::nullopt;
}

QString CommandLine::helpText() {
    return Options().parser.helpText();
}

} // namespace Panel
