#include <panel/CommandLine.hpp>
#include <QCommandLineParser>
#include <QRegularExpression>

namespace Panel {

namespace {

QString text(char const* english) {
    return QCoreApplication::translate("CommandLine", english);
}

// One place for the options, for parsing and for the help.
class Options {
public:
    Options() {
        parser.setApplicationDescription(text("A control panel for networks of objects with typed parameters."));
        parser.addOptions(
            {help, version, object, pool, set, rawValues, screenshot, size, palette, values, listCreators, plugin});
        parser.addPositionalArgument(QStringLiteral("NETWORK.json"),
                                     text("The network to open; examples/fractal.json unless given."),
                                     QStringLiteral("[NETWORK.json]"));
    }

    QCommandLineOption const help{{QStringLiteral("h"), QStringLiteral("help")},
                                  text("Says how to start the program.")};
    QCommandLineOption const version{{QStringLiteral("v"), QStringLiteral("version")},
                                     text("Says which version this is.")};
    QCommandLineOption const object{QStringLiteral("object"), text("Shows the object of this name."), text("NAME")};
    QCommandLineOption const pool{QStringLiteral("pool"), text("Chooses the value pool of this name."), text("NAME")};
    QCommandLineOption const set{QStringLiteral("set"),
                                 text("Sets a value as the host would, in the chosen pool. May be repeated."),
                                 text("OBJECT.PARAMETER=TEXT")};
    QCommandLineOption const rawValues{QStringLiteral("raw"), text("Shows the raw values beside the editors.")};
    QCommandLineOption const screenshot{QStringLiteral("screenshot"),
                                        text("Draws the panel into an image file, without a display, and ends."),
                                        text("FILE.png")};
    QCommandLineOption const size{QStringLiteral("size"), text("Gives the panel this size, as in 1200x800."),
                                  text("WIDTHxHEIGHT")};
    QCommandLineOption const palette{QStringLiteral("palette"), text("Uses light or dark colours."),
                                     text("light|dark")};
    QCommandLineOption const values{QStringLiteral("values"), text("Prints all values as JSON and ends.")};
    QCommandLineOption const listCreators{
        QStringLiteral("list-creators"),
        text("Prints the value type, name and preference set of each input creator, separated by tabs, and ends.")};
    QCommandLineOption const plugin{QStringLiteral("plugin"),
                                    text("Loads this plug-in file instead of qtalo_inputs.talo. May be repeated."),
                                    text("FILE")};
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
        return refuse(text("More than one network is named: %1.").arg(networks.join(QLatin1String(", "))));
    line.network = networks.value(0);
    // An option that is given must say something: an empty text is a slip of a script.
    for (auto const* const option : {&options.object, &options.pool, &options.screenshot, &options.plugin}) {
        if (parser.values(*option).contains(QString()))
            return refuse(text("The option --%1 needs a value.").arg(option->names().constFirst()));
    }
    line.object = parser.value(options.object);
    line.pool = parser.value(options.pool);
    line.screenshot = parser.value(options.screenshot);
    line.plugins = parser.values(options.plugin);
    line.rawValues = parser.isSet(options.rawValues);
    line.listCreators = parser.isSet(options.listCreators);
    line.values = parser.isSet(options.values);
    line.help = parser.isSet(options.help);
    line.version = parser.isSet(options.version);

    auto const settings = parser.values(options.set);
    for (auto const& setting : settings) {
        int const equals = setting.indexOf(QLatin1Char('='));
        if (equals < 0)
            return refuse(text("--set wants OBJECT.PARAMETER=TEXT and found \"%1\".").arg(setting));
        line.settings.push_back({setting.left(equals), setting.mid(equals + 1)});
    }
    if (parser.isSet(options.size)) {
        QRegularExpression const pattern(QStringLiteral("\\A([1-9][0-9]{1,3})x([1-9][0-9]{1,3})\\z"));
        auto const match = pattern.match(parser.value(options.size));
        if (!match.hasMatch())
            return refuse(text("--size wants a size as in 1200x800 and found \"%1\".").arg(parser.value(options.size)));
        line.size = {match.captured(1).toInt(), match.captured(2).toInt()};
    }
    if (parser.isSet(options.palette)) {
        auto const name = parser.value(options.palette);
        if (name != QLatin1String("light") && name != QLatin1String("dark"))
            return refuse(text("--palette wants light or dark and found \"%1\".").arg(name));
        line.theme = name == QLatin1String("dark") ? Theme::Dark : Theme::Light;
    }
    return line;
}

QString CommandLine::helpText() {
    return Options().parser.helpText();
}

} // namespace Panel
