// What long lists and long texts cost.

#include "BareTextEditor.hpp"
#include "ScaleReport.hpp"

#include <bramble/MultipleStringSelection.hpp>
#include <bramble/StringSelection.hpp>
#include <checker/ChosenPools.hpp>
#include <lattice/EditRecorder.hpp>
#include <malloc.h>
#include <panel/window/MainWindow.hpp>
#include <panel/window/Plugins.hpp>
#include <parameters/rows/RawValueLabel.hpp>
#include <QHelpEvent>
#include <QListWidget>
#include <QTest>
#include <QTextEdit>
#include <sorrel/InputFrontEnd.hpp>

namespace {

std::vector<std::string> frames(int count) {
    std::vector<std::string> all;
    for (int number = 0; number < count; ++number)
        all.push_back("frame_" + std::to_string(number) + ".png");
    return all;
}

class Source : public Kolt::ValueNotifier {
public:
    ~Source() override { stopNotifications(); }
    void onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const*) override {}
};

/// Bytes that a step keeps and the time of an edit that is recorded; `edit` changes the selection in place.
template <typename Selection, typename Edit>
void reportSteps(ScaleReport& report, std::string const& name, Selection const& selection, double byteGoal,
                 Edit const& edit) {
    Kolt::UndoHistory history;
    Kolt::ParameterPtr const parameter(new Kolt::VParameter("frames", Kolt::makeValue(selection)));
    parameter->setHistory(&history);
    auto const recorder = Kolt::EditRecorder::watch(parameter);
    Source source;
    int number = 0;
    auto const change = [&] {
        edit(*selection, number++);
        if (!Kolt::setParameterValue(*parameter, selection, nullptr, std::string(), false,
                                     Tessera::WeakPtr<Kolt::ValueNotifier>(&source), nullptr))
            qFatal("The benchmark cannot write the value.");
    };
    change();
    constexpr int steps = 100;
    auto const before = mallinfo2();
    double const time = quickestTime(1, [&](int) {
        for (int step = 0; step < steps; ++step)
            change();
    });
    auto const after = mallinfo2();
    double const bytes =
        static_cast<double>(after.uordblks + after.hblkhd) - static_cast<double>(before.uordblks + before.hblkhd);
    report.add(name + ": undo step", bytes / steps / 1024, byteGoal, "KB");
    report.add(name + ": recorded edit", time / steps, 0.1);
}

/// Milliseconds for each key in an editor, until it is painted.
double timeOfKeys(QTextEdit& edit) {
    edit.activateWindow();
    edit.setFocus();
    constexpr int count = 20;
    auto const keys = [&](int) {
        for (int n = 0; n < count; ++n) {
            QTest::keyClick(&edit, Qt::Key_X);
            QCoreApplication::processEvents();
        }
    };
    // The first key lays the text out.
    keys(0);
    return quickestTime(3, keys) / count;
}

void reportRawValue(ScaleReport& report, Panel::MainWindow& window) {
    auto* const raw = window.currentView()->findChild<Talo::RawValueLabel*>();
    auto const& text = longText();
    auto const parameter = window.network()->findParameter(QStringLiteral("o.p"));
    auto const other = Kolt::makeValue(text + '!');
    report.add("1 MB text: raw value until painted",
               quickestTime(5,
                            [&](int round) {
                                if (!parameter->ownValue()->assign(*(round % 2 ? other : Kolt::makeValue(text))))
                                    qFatal("The benchmark cannot write the value.");
                                raw->refresh();
                                raw->repaint();
                            }),
               1);
    report.add("1 MB text: tool tip of the raw value",
               quickestTime(3,
                            [&](int) {
                                QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), raw->mapToGlobal(QPoint(5, 5)));
                                QCoreApplication::sendEvent(raw, &help);
                                QCoreApplication::processEvents();
                            }),
               1);
}

} // namespace

void reportLists(ScaleReport& report) {
    auto const list = frames(largeSize);
    Kolt::VStringList const single(new Kolt::StringSelection(list, list.front()));
    Kolt::VMultipleStringList const multiple(new Kolt::MultipleStringSelection(list));
    reportSteps(report, "100,000 texts, single selection", single, 1,
                [&](auto& selection, int number) { selection.select(list[static_cast<std::size_t>(number) + 1]); });
    reportSteps(report, "100,000 texts, multiple selection", multiple, 10,
                [&](auto& selection, int number) { selection.add(list[static_cast<std::size_t>(number)]); });

    Checker::ChosenPools pools;
    pools.use(Kolt::PoolPtr(new Kolt::ValuePool("pool")));
    QWidget window;
    window.resize(600, 400);
    window.show();
    auto const reportHost = [&](char const* job, auto const& selection, double goal, auto const& change) {
        Kolt::ParameterPtr const parameter(new Kolt::VParameter("frames", Kolt::makeValue(selection)));
        auto const editor = Kolt::makeEditor(parameter, &window, &pools);
        editor.widget->show();
        QCoreApplication::processEvents();
        report.add(job,
                   quickestTime(5,
                                [&](int round) {
                                    change(*selection, round);
                                    parameter->notifyValueChange(parameter->ownValue(), nullptr, std::string(), nullptr,
                                                                 nullptr, nullptr);
                                    QCoreApplication::processEvents();
                                }),
                   goal);
        delete editor.widget;
    };
    reportHost("100,000 texts, drop-down: host change", single, 0.3,
               [&](auto& selection, int round) { selection.select(list[static_cast<std::size_t>(round)]); });
    reportHost("100,000 texts, multiple selection: equal refill", multiple, 30, [](auto&, int) {});
}

void reportTexts(ScaleReport& report) {
    QWidget bareWindow;
    bareWindow.resize(600, 400);
    auto* const bareEdit = makeBareTextEditor(&bareWindow);
    bareEdit->resize(bareWindow.size());
    bareWindow.show();
    auto const bare = timeOfKeys(*bareEdit);
    QTemporaryDir const folder;
    Panel::Plugins plugins;
    Panel::MainWindow window(plugins);
    window.show();
    window.openNetwork(written(folder, QStringLiteral("text.json"), textJson(QByteArray::fromStdString(longText()))));
    QCoreApplication::processEvents();
    auto* const edit = window.currentView()->findChild<QTextEdit*>();
    if (!edit)
        qFatal("There is no editor.");
    report.compare("1 MB text in the panel: key", timeOfKeys(*edit), bare, 1.4);
    window.setRawValuesShown(true);
    QCoreApplication::processEvents();
    report.compare("1 MB text in the panel: key, raw values shown", timeOfKeys(*edit), bare, 1.6);
    reportRawValue(report, window);
}

void reportKeys(ScaleReport& report) {
    QTemporaryDir const folder;
    Panel::Plugins plugins;
    Panel::MainWindow window(plugins);
    window.show();
    auto const entries = listOfTexts(largeSize, "frame ");
    window.openNetwork(written(folder, QStringLiteral("choice.json"), choiceJson(entries)));
    QCoreApplication::processEvents();
    auto* const list = window.currentView()->findChild<QListWidget*>();
    if (!list)
        qFatal("There is no list.");
    list->setFocus();
    // Both ways, so that the list does not come to its end.
    auto const key = [&](int round) {
        QKeyEvent event(QEvent::KeyPress, round % 2 ? Qt::Key_Down : Qt::Key_Up, Qt::NoModifier);
        QCoreApplication::sendEvent(list, &event);
    };
    quickestTime(2, key);
    report.add("100,000 texts, all chosen: key that chooses nothing", quickestTime(20, key), 0.1);
}
