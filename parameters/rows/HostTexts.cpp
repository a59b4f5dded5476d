#include <parameters/rows/HostTexts.hpp>

#include <QCoreApplication>
#include <QRegularExpression>
#include <vector>

namespace Talo {

namespace {

constexpr char context[] = "HostTexts";

struct HostSentence {
    /// The whole sentence; what it captures are the arguments.
    char const* pattern;
    char const* text;
};

// The texts have the arguments of the patterns in their order.
constexpr HostSentence hostSentences[] = {
    {"no creator is registered for (.+)", QT_TRANSLATE_NOOP("HostTexts", "No creator is registered for %1.")},
    {"there is no parameter", QT_TRANSLATE_NOOP("HostTexts", "There is no parameter.")},
    {"(\".*\" \\{.*\\}) holds all of the wanted (\\{.*\\}), of (\\d+) creators? for (.+)",
     QT_TRANSLATE_NOOP("HostTexts", "%1 holds all of the wanted %2. Creators for %4: %3.")},
    {"(\".*\" \\{.*\\}) shares most with the wanted (\\{.*\\}), of (\\d+) creators? for (.+)",
     QT_TRANSLATE_NOOP("HostTexts", "%1 shares most with the wanted %2. Creators for %4: %3.")},
    {"but without a pool source it drops every edit",
     QT_TRANSLATE_NOOP("HostTexts", "Without a pool source the editor drops every edit.")},
    {"but it drops every edit as long as its source has no pool",
     QT_TRANSLATE_NOOP("HostTexts", "The editor drops every edit as long as its source has no pool.")},
    {"but it edits a value of type (.+) and not (.+)",
     QT_TRANSLATE_NOOP("HostTexts", "The editor edits a value of type %1 and not %2.")},
    {"but it makes no Qt widgets", QT_TRANSLATE_NOOP("HostTexts", "This creator makes no Qt widgets.")},
    {"but it made no widget", QT_TRANSLATE_NOOP("HostTexts", "Its creator made no widget.")},
    {"but it handed out a widget of the host's own",
     QT_TRANSLATE_NOOP("HostTexts", "Its creator handed out a widget of the program's own.")},
    {"but it ended with an exception: (.+)",
     QT_TRANSLATE_NOOP("HostTexts", "Its creator ended with an exception: %1.")},
    {"The editor of the parameter \"(.+)\", of (.+), ended with an exception: (.+)",
     QT_TRANSLATE_NOOP("HostTexts", "The editor of the parameter \"%1\", of %2, ended with an exception: %3.")},
    {"An editor of (.+) ended with an exception: (.+)",
     QT_TRANSLATE_NOOP("HostTexts", "An editor of %1 ended with an exception: %2.")},
    {"The plug-in (.+) is loaded already\\.", QT_TRANSLATE_NOOP("HostTexts", "The plug-in %1 is loaded already.")},
    {"Cannot open the plug-in (.+?): (.+)", QT_TRANSLATE_NOOP("HostTexts", "Cannot open the plug-in %1: %2")},
    {"Cannot find the export (.+?) in the plug-in (.+?): (.+)",
     QT_TRANSLATE_NOOP("HostTexts", "Cannot find the export %1 in the plug-in %2: %3")},
    {"The plug-in (.+) says that it is not compatible with this host \\((.+)\\)\\.",
     QT_TRANSLATE_NOOP("HostTexts", "The plug-in %1 says that it is not compatible with this host (%2).")},
    {"The plug-in (.+) is not loaded\\.", QT_TRANSLATE_NOOP("HostTexts", "The plug-in %1 is not loaded.")},
    {"The plug-in (.+) cannot be unloaded while (\\d+) of its editors (?:is|are) in use\\.",
     QT_TRANSLATE_NOOP("HostTexts", "The plug-in %1 cannot be unloaded. Editors in use: %2.")},
    {"The plug-in (.+) is loaded already, as (.+)\\.",
     QT_TRANSLATE_NOOP("HostTexts", "The plug-in %1 is loaded already, as %2.")},
    {"The plug-in (.+) does not say for which interface of the host it was built\\.",
     QT_TRANSLATE_NOOP("HostTexts", "The plug-in %1 does not say for which interface of the host it was built.")},
    {"The plug-in (.+) was built for another interface of the host \\((.+), not (.+)\\)\\. Build it again\\.",
     QT_TRANSLATE_NOOP("HostTexts", "The plug-in %1 was built for another interface of the host (%2, not %3). "
                                    "Build it again.")},
    {"The plug-in (.+) ended with an exception: (.+)",
     QT_TRANSLATE_NOOP("HostTexts", "The plug-in %1 ended with an exception: %2")},
    {"The plug-in (.+) cannot be unloaded while its own code is running\\.",
     QT_TRANSLATE_NOOP("HostTexts", "The plug-in %1 cannot be unloaded while its own code is running.")},
    {"The plug-in (.+) cannot be unloaded while these are in use: (.+)\\.",
     QT_TRANSLATE_NOOP("HostTexts", "The plug-in %1 cannot be unloaded while these are in use: %2.")},
    {"The plug-in (.+) was closed and is still in memory, because something else holds it\\.",
     QT_TRANSLATE_NOOP("HostTexts",
                       "The plug-in %1 was closed and is still in memory, because something else holds it.")},
    {"The plug-in (.+) left behind what was removed now: (.+)",
     QT_TRANSLATE_NOOP("HostTexts", "The plug-in %1 left behind what was removed now: %2")},
    {"Cannot close the plug-in (.+?): (.+)", QT_TRANSLATE_NOOP("HostTexts", "Cannot close the plug-in %1: %2")},
};

/// The text with its arguments, in one pass, as an argument may look like a place for another one.
QString withArguments(QString const& text, QStringList const& arguments) {
    QString filled;
    for (int at = 0; at < text.size(); ++at) {
        int const number = text.at(at) == QLatin1Char('%') && at + 1 < text.size() ? text.at(at + 1).digitValue() : -1;
        if (number < 1) {
            filled += text.at(at);
            continue;
        }
        filled += arguments.value(number - 1);
        ++at;
    }
    return filled;
}

/// The translation of one sentence; empty for an unknown one, and where there is no translation.
QString translatedSentence(QString const& english) {
    static auto const patterns = [] {
        std::vector<QRegularExpression> all;
        for (auto const& sentence : hostSentences)
            all.emplace_back(QRegularExpression::anchoredPattern(QLatin1String(sentence.pattern)),
                             QRegularExpression::DotMatchesEverythingOption);
        return all;
    }();
    for (std::size_t index = 0; index < patterns.size(); ++index) {
        auto const match = patterns[index].match(english);
        if (!match.hasMatch())
            continue;
        auto const text = QCoreApplication::translate(context, hostSentences[index].text);
        return text == QLatin1String(hostSentences[index].text) ? QString()
                                                                : withArguments(text, match.capturedTexts().mid(1));
    }
    return {};
}

} // namespace

QString hostText(QString const& english) {
    auto const whole = translatedSentence(english);
    // The host adds at the end what else is to be known of an editor.
    auto const end = english.lastIndexOf(QLatin1String(", but "));
    auto const addition = end < 0 ? QString() : translatedSentence(english.mid(end + 2));
    if (addition.isEmpty())
        return whole.isEmpty() ? english : whole;
    return hostText(english.left(end)) + QLatin1Char(' ') + addition;
}

} // namespace Talo
