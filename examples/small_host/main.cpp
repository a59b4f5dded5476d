#include <parameters/Host.hpp>
#include <QtWidgets>

int main(int argc, char* argv[]) {
    QApplication const application(argc, argv);
    Kolt::PluginLoader plugins;
    if (auto const loaded = plugins.load(TALO_PLUGIN_FILE); !loaded.ok)
        qFatal("%s", loaded.message.c_str());
    auto const network = Talo::Network::create("Lamp", {"day", "night"});
    Kolt::VStringList const modes(new Kolt::StringSelection({"steady", "blink"}, "steady"));
    auto const lamp = network->addObject(
        "lamp", {Kolt::Parameter<bool>("on", true), Kolt::Parameter<int>::perPool("brightness", 60).min(0).max(100),
                 Kolt::Parameter<double>("angle", 0.25), Kolt::Parameter<std::string>("label", "desk"),
                 Kolt::Parameter<Ferro::rgba_float_t>("colour", {1.0F, 0.8F, 0.4F, 1.0F}),
                 Kolt::Parameter<Kolt::FlagList>("options", {{"dim", true}, {"warm", false}}),
                 Kolt::Parameter<Kolt::VStringList>("mode", modes)});
    Talo::PoolSource pools(network->pools().front());
    QMainWindow window;
    auto* const panel = new Talo::ParameterPanel(lamp, pools);
    window.setCentralWidget(panel);
    auto* const tools = window.addToolBar("Tools");
    tools->addActions({panel->action(panel->Command::Undo), panel->action(panel->Command::Redo)});
    for (auto const& pool : network->pools())
        tools->addAction(pool->Name().c_str(), [&, pool] { pools.setPool(pool), panel->showPool(); });
    tools->addAction("Save", [&] { panel->commitPendingEdit(), network->saveAs("lamp.json", nullptr); });
    tools->addWidget(new QLineEdit);
    QObject::connect(tools->findChild<QLineEdit*>(), &QLineEdit::textChanged, panel, &Talo::ParameterPanel::setFilter);
    window.show();
    return QApplication::exec();
}
