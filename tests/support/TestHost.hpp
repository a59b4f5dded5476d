#pragma once

#include "support/TaloTest.hpp"
#include "support/TestWarnings.hpp"

#include <lattice/Input.hpp>
#include <lattice/PluginLoader.hpp>
#include <lattice/UndoHistory.hpp>
#include <sorrel/InputFrontEnd.hpp>

/// A pool source whose pool the test chooses.
class TestPools : public Kolt::ValuePoolSource {
public:
    TestPools() : provider_(new Provider) {}
    Tessera::StrongPtr<Kolt::ValuePoolProvider> getValuePoolProvider() const override { return provider_; }

    void use(Kolt::PoolPtr const& pool) { provider_->pool = pool; }
    /// Removes the provider.
    void dropProvider() { provider_.reset(); }

private:
    struct Provider : Kolt::ValuePoolProvider {
        Kolt::PoolPtr getValuePool() const override { return pool; }
        Kolt::PoolPtr pool;
    };
    Tessera::StrongPtr<Provider, Kolt::ValuePoolProvider> provider_;
};

/// Records a parameter's notifications, as any other part of a host receives them.
class RecordingNotifier : public Kolt::ValueNotifier {
public:
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override {
        if (properties) {
            ++propertyChanges;
        } else {
            values.push_back(newValue ? newValue->Text() : std::string());
            pools.push_back(context.pool());
        }
        if (reaction)
            reaction();
    }

    /// The text of each notified value, and the pool of each notification; notifications of properties are only
    /// counted.
    std::vector<std::string> values;
    std::vector<Kolt::PoolPtr> pools;
    int propertyChanges = 0;
    /// Called for each notification.
    std::function<void()> reaction;
};

/// A small host that loads the built plug-in file before each test; after the test the file must unload.
class PluginTest : public TaloTest {
protected:
    static constexpr char const* missingOwnerLine =
        "**POSSIBLE INTERNAL FAULT**: VInputBase without owner? That's not good.";

    void SetUp() override {
        TaloTest::SetUp();
        auto const outcome = loader.load(TALO_PLUGIN_FILE);
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
        auto const outcome = loader.unload(TALO_PLUGIN_FILE);
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
