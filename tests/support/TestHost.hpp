#pragma once

#include "support/PluginFile.hpp"
#include "support/TaloTest.hpp"
#include "support/TestWarnings.hpp"

#include <checker/ChosenPools.hpp>
#include <lattice/Input.hpp>
#include <lattice/PluginLoader.hpp>
#include <lattice/UndoHistory.hpp>
#include <sorrel/InputFrontEnd.hpp>

using TestPools = Checker::ChosenPools;
using Checker::RecordingNotifier;

/// A small host that loads the built plug-in file before each test; after the test the file must unload.
class PluginTest : public TaloTest {
protected:
    static constexpr char const* missingOwnerLine =
        "**POSSIBLE INTERNAL FAULT**: VInputBase without owner? That's not good.";

    void SetUp() override {
        TaloTest::SetUp();
        auto const outcome = loader.load(pluginFile);
        ASSERT_TRUE(outcome.ok) << outcome.message;
        firstPool = Kolt::PoolPtr(new Kolt::ValuePool("draft"));
        secondPool = Kolt::PoolPtr(new Kolt::ValuePool("final"));
        pools.use(firstPool);
        parent = new QWidget;
        parent->resize(600, 400);
    }

    void TearDown() override {
        delete parent;
        // Objects passed to deleteLater must be deleted before their code is unloaded.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Kolt::UndoHistory::theHistory().forget([](auto const&) { return true; });
        auto const outcome = loader.unload(pluginFile);
        EXPECT_TRUE(outcome.ok) << outcome.message;
        TaloTest::TearDown();
    }

    /// A parameter with a value, preferences, and one value for all pools or one for each.
    static Kolt::ParameterPtr makeParameter(std::string const& name, Kolt::ValuePtr const& value,
                                            std::vector<std::string> const& preferences = {},
                                            Kolt::VParameter::Values values = Kolt::VParameter::Values::Shared,
                                            std::string const& declaredType = {}) {
        Kolt::ParameterPtr const parameter(new Kolt::VParameter(name, value, values, declaredType));
        if (!preferences.empty())
            parameter->setCreationPreferences(Kolt::PreferencesPtr(new Kolt::VCreationPreferences(
                Kolt::VCreationPreferences::Names(preferences.begin(), preferences.end()))));
        return parameter;
    }

    /// Whether the value object has the newest age stamp, and got it after the time `before` (Ageable::GlobalTime).
    static bool isStampedAfter(unsigned long before, Kolt::VValueBase const& value) {
        return value.age() > before && value.age() == Tessera::Ageable::GlobalTime.load();
    }

    /// Opens an editor as the panel does.
    Kolt::Editor open(Kolt::ParameterPtr const& parameter) {
        auto const editor = Kolt::makeEditor(parameter, parent, &pools);
        if (editor.widget)
            editor.widget->show();
        return editor;
    }

    /// The Qt interface of the first registered creator with this value type and name, and with all of the preferences.
    static Tessera::StrongPtr<Kolt::QInputCreator, Tessera::InterfaceBase>
    qtCreator(std::string const& valueType, std::string const& name, std::vector<std::string> const& preferences = {}) {
        for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
            auto const creator = entry.creator.strong();
            bool matches = entry.valueType == valueType && creator->Name() == name;
            for (auto const& preference : preferences)
                matches = matches && creator->preferences()->contains(preference);
            if (matches)
                return creator->getInterface<Kolt::QInputCreator>();
        }
        return nullptr;
    }

    Kolt::VInitialization host;
    Kolt::PluginLoader loader{host};
    TestPools pools;
    Kolt::PoolPtr firstPool;
    Kolt::PoolPtr secondPool;
    RecordedWarnings warnings;
    /// The window in which editors are opened.
    QPointer<QWidget> parent;
};
