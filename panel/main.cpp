#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fractal/objects/ObjectFactory.hpp>
#include <functional>
#include <lattice/InputRegistry.hpp>
#include <panel/CommandLine.hpp>
#include <panel/EndSignals.hpp>
#include <panel/gallery/Gallery.hpp>
#include <panel/InstalledFiles.hpp>
#include <panel/PluginSearch.hpp>
#include <panel/PluginTrial.hpp>
#include <panel/ProgramIcon.hpp>
#include <panel/QtVersion.hpp>
#include <panel/Translations.hpp>
#include <panel/window/MainWindow.hpp>
#include <panel/window/Session.hpp>
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QScreen>
#include <sorrel/GuardedApplication.hpp>
#include <tessera/TerminalText.hpp>

namespace {

constexpr int badUse = 2;

void say(QString const& message) {
    auto const line = QString::fromStdString(Tessera::terminalText(message.toStdString()));
    std::fprintf(stderr, "talo_panel: %s\n", line.toLocal8Bit().constData());
}

/// Says what is wrong; returns the status of a program that ends with that.
int refuse(QString const& reason) {
    say(reason);
    return badUse;
}

/// Prints the text to standard output. Gives the status of a program that ends with that.
int print(QByteArray const& text) {
    auto const size = static_cast<std::size_t>(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0)
        return 0;
    return refuse(QCoreApplication::translate("main", "Cannot write to standard output: %1.")
                      .arg(QString::fromLocal8Bit(std::strerror(errno))));
}

// The arguments before there is an application object, which is given only what it needs to know.
QStringList decoded(int count, char* const* arguments) {
    QStringList list;
    for (int index = 0; index < count; ++index)
        list << QFile::decodeName(arguments[index]);
    return list;
}

/// Chooses Qt's platform. True when there is no display for a panel that should be shown.
bool choosePlatform(Panel::CommandLine const& commandLine) {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return false;
    bool const display = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (display && !commandLine.isBatch())
        return false;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return !commandLine.isBatch();
}

/// Refuses a command line that cannot be read, in the user's language.
int refuseCommandLine(QStringList const& arguments, char* program) {
    char* programOnly[] = {program, nullptr};
    int count = 1;
    QCoreApplication const application(count, programOnly);
    Panel::Translations const translations;
    QString error;
    Panel::CommandLine::parse(arguments, error);
    return refuse(error + QLatin1Char(' ') +
                  QCoreApplication::translate("main", "--help says how to start the program."));
}

// The offscreen platform says of every window what it cannot do, which is of no use to the user.
void passOnMessages(QtMsgType, QMessageLogContext const&, QString const& message) {
    if (message.startsWith(QLatin1String("This plugin does not support ")))
        return;
    auto const lines = message.split(QLatin1Char('\n'));
    for (auto const& line : lines) {
        auto const text = QString::fromStdString(Tessera::terminalText(line.toStdString()));
        std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
    }
}

int printCreators() {
    QStringList lines;
    for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
        auto const creator = entry.creator.strong();
        QStringList names;
        for (auto const& name : creator->preferences()->names())
            names << QString::fromStdString(name);
        QStringList const columns{QString::fromStdString(entry.valueType), QString::fromStdString(creator->Name()),
                                  names.join(QLatin1Char(','))};
        lines << columns.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return print(lines.join(QString()).toUtf8());
}

// Prepares the network as the options say; gives the reason when something of it cannot be done.
QString prepare(Talo::Network& network, Panel::CommandLine const& commandLine) {
    auto pool = network.pools().front();
    if (!commandLine.pool.isEmpty()) {
        pool = network.findPool(commandLine.pool);
        if (!pool) {
            QStringList names;
            for (auto const& known : network.pools())
                names << QString::fromStdString(known->Name());
            return QCoreApplication::translate("main", "%1 has no pool \"%2\", only %3.")
                .arg(network.file(), commandLine.pool, names.join(QLatin1String(", ")));
        }
    }
    if (!commandLine.object.isEmpty() && !network.findObject(commandLine.object))
        return QCoreApplication::translate("main", "%1 has no object \"%2\".").arg(network.file(), commandLine.object);
    for (auto const& setting : commandLine.settings) {
        QString error;
        if (!network.setText(setting.parameter, setting.text, pool, &error))
            return error;
    }
    return {};
}

// Keeps the unsaved values of the shown panel; null while none is shown.
Panel::Recovery* currentRecovery = nullptr;

/// Qt ends the process by exit() when the display is lost. What is on the stack is not destroyed then, so what the rest
/// of the exit would run must not look at it either.
void endWithoutDisplay() {
    if (!currentRecovery)
        return;
    currentRecovery->write();
    say(QCoreApplication::translate("main", "The display is gone."));
    std::fflush(nullptr);
    std::_Exit(1);
}

/// Shows the window for as long as somebody uses it. The status is 0, also where a signal ended the process.
int show(QWidget& window) {
    Panel::EndSignals const endSignals;
    QObject::connect(&endSignals, &Panel::EndSignals::endRequested, [] { QApplication::exit(0); });
    // Drawn larger, a window may outgrow the screen.
    auto const size = window.size().boundedTo(window.screen()->availableSize());
    if (size != window.size() && !window.isMaximized() && !window.isFullScreen())
        window.resize(size);
    window.show();
    return QApplication::exec();
}

int draw(QWidget& window, std::function<bool()> const& isAtRest, QString const& file) {
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    // Layouts and what the editors put off come to rest, and then what is computed meanwhile.
    for (int round = 0; round < 3; ++round) {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
    while (!isAtRest())
        QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    if (!window.grab().save(file))
        return refuse(QCoreApplication::translate("main", "Cannot write the image %1.").arg(file));
    return 0;
}

/// Adds what could not be done to a list of messages.
void tell(Panel::MessageList& messages, QStringList const& remarks) {
    for (auto const& remark : remarks)
        messages.add(Panel::MessageList::Source::Error, remark);
}

int showGallery(Panel::CommandLine const& commandLine, QStringList const& remarks) {
    Panel::Gallery gallery;
    tell(*gallery.messages(), remarks);
    gallery.tapStandardOutput();
    if (commandLine.size.isValid())
        gallery.resize(commandLine.size);
    if (auto const state = Panel::findGalleryState(commandLine.state))
        gallery.showState(*state);
    if (!commandLine.screenshot.isEmpty())
        return draw(
            gallery, [] { return true; }, commandLine.screenshot);
    return show(gallery);
}

/// The plug-ins that were loaded at the start.
struct LoadedPlugins {
    /// What is not loaded, and why: sentences.
    QStringList remarks;
    /// Whether each file that the command line names is loaded.
    bool hasNamed = true;
    /// Whether the project's own plug-in is loaded, or another one was asked for instead.
    bool hasOwn = true;
};

/// The plug-ins that are named, and those that are found unless others are named instead of them.
Panel::PluginSearch findPlugins(Panel::CommandLine const& commandLine) {
    Panel::PluginSearch search;
    auto const own = Panel::defaultPluginFile();
    bool const looks = commandLine.onlyPlugins.isEmpty();
    if (looks) {
        search.addFolder(QFileInfo(own).path());
        search.addPath(QFile::decodeName(qgetenv("TALO_PLUGIN_PATH")));
    }
    auto const files = commandLine.onlyPlugins + commandLine.plugins;
    for (auto const& file : files)
        search.addFile(file);
    // Its loading tells that it is missing.
    if (looks && !search.hasName(QFileInfo(own).fileName()))
        search.addFile(own);
    return search;
}

/// Loads plug-ins as the command line says, and says what is not loaded. Without one that was found the program goes
/// on.
LoadedPlugins loadPlugins(Panel::Plugins& plugins, Panel::CommandLine const& commandLine) {
    auto const search = findPlugins(commandLine);
    auto const named = commandLine.onlyPlugins + commandLine.plugins;
    auto const ownName = QFileInfo(Panel::defaultPluginFile()).fileName();
    LoadedPlugins loaded{search.remarks()};
    for (auto const& file : search.files()) {
        QString error;
        if (plugins.load(file, &error))
            continue;
        loaded.remarks << error.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        loaded.hasNamed = loaded.hasNamed && !named.contains(file);
        loaded.hasOwn = loaded.hasOwn && QFileInfo(file).fileName() != ownName;
    }
    for (auto const& remark : std::as_const(loaded.remarks))
        say(remark);
    return loaded;
}

/// The network that the command line names, prepared as it says; null, after saying why, if that cannot be done.
std::unique_ptr<Talo::Network> openNetwork(Panel::CommandLine const& commandLine) {
    auto const file = commandLine.network.isEmpty() ? Panel::defaultNetworkFile() : commandLine.network;
    if (file.isEmpty()) {
        refuse(
            QCoreApplication::translate("main", "examples/networks/fractal.json is missing; name a network to open."));
        return nullptr;
    }
    auto loaded = Talo::Network::load(file, Fractal::makeObject);
    auto const problem = loaded.network ? prepare(*loaded.network, commandLine) : loaded.error;
    if (problem.isEmpty())
        return std::move(loaded.network);
    refuse(problem);
    return nullptr;
}

/// Changes the window as the command line says, which wins over the session.
void prepareWindow(Panel::MainWindow& window, Panel::CommandLine const& commandLine) {
    if (commandLine.rawValues)
        window.setRawValuesShown(true);
    if (commandLine.theme != Panel::Theme::System)
        window.look().chooseTheme(commandLine.theme);
    if (commandLine.size.isValid()) {
        window.setWindowState(Qt::WindowNoState);
        window.resize(commandLine.size);
    }
    if (!commandLine.pool.isEmpty())
        window.choosePool(commandLine.pool);
    if (!commandLine.object.isEmpty())
        window.showObject(commandLine.object);
}

/// Shows the window with what was kept of earlier starts, and keeps what would be lost.
int showKept(Panel::MainWindow& window, Panel::CommandLine const& commandLine) {
    Panel::Session session(Panel::Session::userFile());
    QObject::connect(&session, &Panel::Session::failed, refuse);
    if (commandLine.session)
        session.follow(window);
    prepareWindow(window, commandLine);
    Panel::Recovery recovery(window.document(), Panel::Recovery::userFolder());
    window.follow(recovery);
    currentRecovery = &recovery;
    // Registered last, it runs before what Qt, the libraries and the plug-ins do at the end.
    std::atexit(endWithoutDisplay);
    int const status = show(window);
    currentRecovery = nullptr;
    // A window that was closed has no unsaved values that somebody wants. One that is still there was ended from
    // outside, by a signal.
    if (window.isVisible()) {
        window.commitPendingEdit();
        recovery.write();
    } else {
        recovery.discard();
    }
    return status;
}

int showWindow(Panel::Plugins& plugins, std::unique_ptr<Talo::Network> network, Panel::CommandLine const& commandLine,
               QStringList const& remarks) {
    Panel::MainWindow window(plugins);
    tell(*window.messages(), remarks);
    window.tapStandardOutput();
    window.showNetwork(std::move(network));
    if (commandLine.screenshot.isEmpty())
        return showKept(window, commandLine);
    prepareWindow(window, commandLine);
    return draw(
        window, [&] { return window.fractalController().isAtRest(); }, commandLine.screenshot);
}

int run(Panel::CommandLine const& commandLine) {
    // Closes the plug-ins after everything else was destroyed.
    Panel::PluginTrial trial(Panel::checkerProgram(), Panel::PluginTrial::userFile());
    Panel::Plugins plugins;
    plugins.setTrial([&trial](QString const& file) { return trial.problemOf(file); });
    auto const loaded = loadPlugins(plugins, commandLine);
    if (!loaded.hasNamed)
        return badUse;
    // Qt sets the direction of the language when translations are loaded, as with the plug-ins.
    if (commandLine.rightToLeft)
        QApplication::setLayoutDirection(Qt::RightToLeft);
    bool const draws = !commandLine.screenshot.isEmpty();
    if (commandLine.listCreators) {
        // A list without its creators would be wrong; everything else has placeholders.
        if (!loaded.hasOwn)
            return badUse;
        int const status = printCreators();
        if (status != 0 || (!commandLine.values && !draws))
            return status;
    }
    if (commandLine.gallery)
        return showGallery(commandLine, loaded.remarks);
    auto network = openNetwork(commandLine);
    if (!network)
        return badUse;
    if (commandLine.values) {
        int const status = print(network->values());
        if (status != 0 || !draws)
            return status;
    }
    return showWindow(plugins, std::move(network), commandLine, loaded.remarks);
}

} // namespace

int main(int argc, char* argv[]) {
    std::setlocale(LC_ALL, "");
    // A reader of standard output that ends must not end the panel; the write fails instead.
    std::signal(SIGPIPE, SIG_IGN);
    QString error;
    auto const arguments = decoded(argc, argv);
    auto commandLine = Panel::CommandLine::parse(arguments, error);
    if (!commandLine)
        return refuseCommandLine(arguments, argv[0]);
    bool const drawn = choosePlatform(*commandLine);
    if (drawn)
        commandLine->screenshot = QStringLiteral("panel.png");
    if (!commandLine->language.isEmpty())
        QLocale::setDefault(QLocale(commandLine->language));

    Panel::QtVersion::useSharpIcons();
    if (!commandLine->scale.isEmpty())
        qputenv("QT_SCALE_FACTOR", commandLine->scale.toLatin1());
    qInstallMessageHandler(passOnMessages);
    int qtArguments = 1;
    Kolt::GuardedApplication const application(qtArguments, argv);
    Panel::Translations const translations;
    QApplication::setApplicationName(QStringLiteral("talo_panel"));
    QApplication::setApplicationDisplayName(QCoreApplication::translate("main", "Talo panel"));
    QApplication::setApplicationVersion(QStringLiteral(TALO_VERSION));
    // By this name the desktop finds the entry of the menus, and with it the name and the icon of the windows.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.talo.panel"));
    QApplication::setWindowIcon(Panel::programIcon());
    if (commandLine->help) {
        return print(Panel::CommandLine::helpText().toUtf8());
    }
    if (commandLine->version) {
        return print("talo_panel " TALO_VERSION "\n");
    }
    Panel::applyLook(commandLine->theme);
    int const status = run(*commandLine);
    if (drawn && status == 0)
        say(QCoreApplication::translate("main", "There is no display, so the panel was drawn into %1.")
                .arg(commandLine->screenshot));
    return status;
}
