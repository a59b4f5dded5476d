#include <panel/CommandLine.hpp>
#include <panel/gallery/GalleryState.hpp>
#include <QCommandLineParser>
#include <QLocale>
#include <QRegularExpression>

namespace Panel {

namespace {

// One place for the options, for parsing and for the help.
class Options {
public:
    Options() {
        parser.setApplicationDescription(
            CommandLine::tr("A control panel for networks of objects with typed parameters."));
        parser.addOptions({help, version, object, pool, set, rawValues, screenshot, size, palette, rightToLeft, scale,
                           values, gallery, language, noSession, listCreators, plugin, state});
        parser.addPositionalArgument(QStringLiteral("NETWORK.json"),
                                     CommandLine::tr("The network to open; examples/fractal.json unless given."),
                                     QStringLiteral("[NETWORK.json]"));
    }

    QCommandLineOption const help{{QStringLiteral("h"), QStringLiteral("help")},
                                  CommandLine::tr("Says how to start the program.")};
    QCommandLineOption const version{{QStringLiteral("v"), QStringLiteral("version")},
                                     CommandLine::tr("Says which version this is.")};
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
        QStringLiteral("screenshot"),
        CommandLine::tr("Draws the panel into an image file, without a display, and ends."),
        CommandLine::tr("FILE.png")};
    QCommandLineOption const size{QStringLiteral("size"), CommandLine::tr("Gives the panel this size, as in 1200x800."),
                                  CommandLine::tr("WIDTHxHEIGHT")};
    QCommandLineOption const palette{QStringLiteral("palette"), CommandLine::tr("Uses light or dark colours."),
                                     CommandLine::tr("light|dark")};
    QCommandLineOption const scale{QStringLiteral("scale"),
                                   CommandLine::tr("Draws everything larger by this factor, from 0.5 to 4."),
                                   CommandLine::tr("FACTOR")};
    QCommandLineOption const rightToLeft{QStringLiteral("right-to-left"),
                                         CommandLine::tr("Lays the panel out from right to left.")};
    QCommandLineOption const language{QStringLiteral("language"),
                                      CommandLine::tr("Speaks this language instead of the system's, as in de or fr."),
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
                                       CommandLine::tr("Neither brings the last session back nor keeps this one.")};
    QCommandLineOption const values{QStringLiteral("values"), CommandLine::tr("Prints all values as JSON and ends.")};
    QCommandLineOption const listCreators{
        QStringLiteral("list-creators"),
        CommandLine::tr(
            "Prints the value type, name and preference set of each input creator, separated by tabs, and ends.")};
    QCommandLineOption const plugin{
        QStringLiteral("plugin"),
        CommandLine::tr("Loads this plug-in file instead of qtalo_inputs.talo. May be repeated."),
        CommandLine::tr("FILE")};
    QCommandLineParser parser;
};

} // namespace

std::optional<CommandLine> CommandLine::parse(QStringList const& arguments, QString& error) {
    Options options;
    auto const& parser = options.parser;
    auto const refuse = [&](QString const& reason) {
        error = reason;
        return std::nullopt;
    };
    if (!options.parser.parse(arguments))
        return refuse(parser.errorText());

    CommandLine line;
    auto const networks = parser.positionalArguments();
    if (networks.size() > 1)
        return refuse(CommandLine::tr("More than one network is named: %1.").arg(networks.join(QLatin1String(", "))));
    line.network = networks.value(0);
    // An option that is given must say something: an empty text is a slip of a script.
    for (auto const* const option :
         {&options.object, &options.pool, &options.screenshot, &options.plugin, &options.language, &options.state}) {
        if (parser.values(*option).contains(QString()))
            return refuse(CommandLine::tr("The option --%1 needs a value.").arg(option->names().constFirst()));
    }
    line.object = parser.value(options.object);
    line.pool = parser.value(options.pool);
    line.screenshot = parser.value(options.screenshot);
    line.plugins = parser.values(options.plugin);
    line.rightToLeft = parser.isSet(options.rightToLeft);
    line.language = parser.value(options.language);
    line.gallery = parser.isSet(options.gallery);
    line.state = parser.value(options.state);
    line.session = !parser.isSet(options.noSession);
    line.rawValues = parser.isSet(options.rawValues);
    line.listCreators = parser.isSet(options.listCreators);
    line.values = parser.isSet(options.values);
    line.help = parser.isSet(options.help);
    line.version = parser.isSet(options.version);

    auto const settings = parser.values(options.set);
    for (auto const& setting : settings) {
        int const equals = setting.indexOf(QLatin1Char('='));
        if (equals < 0)
            return refuse(CommandLine::tr("--set wants OBJECT.PARAMETER=TEXT and found \"%1\".").arg(setting));
        line.settings.push_back({setting.left(equals), setting.mid(equals + 1)});
    }
    if (parser.isSet(options.size)) {
        QRegularExpression const pattern(QStringLiteral("\\A([1-9][0-9]{1,3})x([1-9][0-9]{1,3})\\z"));
        auto const match = pattern.match(parser.value(options.size));
        if (!match.hasMatch())
            return refuse(CommandLine::tr("--size wants a size as in 1200x800 and found \"%1\".")
                              .arg(parser.value(options.size)));
        line.size = {match.captured(1).toInt(), match.captured(2).toInt()};
    }
    if (parser.isSet(options.palette)) {
        auto const name = parser.value(options.palette);
        if (name != QLatin1String("light") && name != QLatin1String("dark"))
            return refuse(CommandLine::tr("--palette wants light or dark and found \"%1\".").arg(name));
        line.theme = name == QLatin1String("dark") ? Theme::Dark : Theme::Light;
    }
    if (parser.isSet(options.scale)) {
        line.scale = parser.value(options.scale);
        bool isNumber = false;
        double const factor = line.scale.toDouble(&isNumber);
        if (!isNumber || !(factor >= 0.5 && factor <= 4.0))
            return refuse(CommandLine::tr("--scale wants a factor from 0.5 to 4 and found \"%1\".").arg(line.scale));
    }
    if (!line.language.isEmpty() && QLocale(line.language).language() == QLocale::C)
        return refuse(
            CommandLine::tr("--language wants a language as in de or fr and found \"%1\".").arg(line.language));
    // What is asked of a network would be lost without a word.
    if (line.gallery) {
        for (auto const* const option : {&options.object, &options.pool, &options.set, &options.values}) {
            if (parser.isSet(*option))
                return refuse(CommandLine::tr("The gallery opens no network, so --%1 says nothing beside --gallery.")
                                  .arg(option->names().constFirst()));
        }
        if (!line.network.isEmpty())
            return refuse(CommandLine::tr("The gallery opens no network, so %1 says nothing beside --gallery.")
                              .arg(line.network));
        if (!line.state.isEmpty() && !findGalleryState(line.state))
            return refuse(
                CommandLine::tr("--state wants one of %1 and found \"%2\".").arg(galleryStateKeys(), line.state));
    } else if (!line.state.isEmpty()) {
        return refuse(CommandLine::tr("--state says nothing without --gallery."));
    }
    return line;
}

QString CommandLine::helpText() {
    return Options().parser.helpText();
}

} // namespace Panel
