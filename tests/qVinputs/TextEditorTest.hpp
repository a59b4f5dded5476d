#pragma once

#include "support/TaloTest.hpp"
#include <bramble/Values.hpp>
#include <functional>
#include <lattice/PluginLoader.hpp>
#include <memory>
#include <QVBoxLayout>
#include <QWidget>
#include <random>
#include <sorrel/InputFrontEnd.hpp>

/// A pool source whose pool the test chooses. It starts with a pool.
class ChosenPool : public Kolt::ValuePoolSource {
public:
    using Pool = Tessera::StrongPtr<Kolt::ValuePool>;

    ChosenPool() : provider_(new Provider) { choose(Pool(new Kolt::ValuePool("first"))); }

    /// Null for no pool.
    void choose(Pool const& pool) { provider_->pool = pool; }
    Pool const& pool() const { return provider_->pool; }
    Tessera::StrongPtr<Kolt::ValuePoolProvider> getValuePoolProvider() const override { return provider_; }

private:
    struct Provider : Kolt::ValuePoolProvider {
        Pool getValuePool() const override { return pool; }
        Pool pool;
    };
    Tessera::StrongPtr<Provider, Kolt::ValuePoolProvider> provider_;
};

/// Records the texts of all values that it is told of; then does what the test wants done.
class Listener : public Kolt::ValueNotifier {
public:
    void onValueChange(Tessera::StrongPtr<Kolt::VValueBase> const& value, Kolt::VContext const&,
                       Kolt::ValueMap const*) override {
        texts.push_back(value->Text());
        if (reaction)
            reaction();
    }

    std::vector<std::string> texts;
    std::function<void()> reaction;
};

/// Edits parameters with editors that the loaded plug-in makes. The editors stand in a panel that is shown.
class TextEditorTest : public TaloTest {
protected:
    using Values = Kolt::VParameter::Values;

    TextEditorTest() {
        auto const outcome = loader_.load(TALO_PLUGIN_FILE);
        if (!outcome.ok)
            throw std::runtime_error(outcome.message);
        panel_ = std::make_unique<QWidget>();
        panel_->setLayout(new QVBoxLayout);
    }

    template <typename T>
    static Kolt::ParameterPtr makeParameter(T const& value, Values values = Values::Shared) {
        return Kolt::ParameterPtr(new Kolt::VParameter("network.parameter", Kolt::makeValue(value), values));
    }
    static Kolt::ParameterPtr makeText(std::string const& text, Values values = Values::Shared) {
        return makeParameter(text, values);
    }

    static Tessera::StrongPtr<Kolt::VInputCreatorBase, Kolt::VManagedObjectBase> creator(std::string const& name) {
        for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
            auto creator = entry.creator.strong();
            if (creator->Name() == name)
                return creator;
        }
        throw std::runtime_error("no creator is called " + name);
    }

    /// The editor that the named creator makes, in the panel.
    template <typename Widget>
    Widget* create(std::string const& creatorName,
                   Tessera::WeakPtr<Kolt::VParameter, Kolt::ValueNotifierList> const& parameter) {
        auto const widgets = creator(creatorName)->getInterface<Kolt::QInputCreator>();
        auto const [widget, input] = widgets->create(parameter, panel_.get(), &pools_);
        input_ = input;
        panel_->layout()->addWidget(widget);
        return dynamic_cast<Widget*>(widget.data());
    }

    void watch(Kolt::ParameterPtr const& parameter) {
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&listener_));
    }

    /// Stores a value as the host does, and tells everybody.
    template <typename T>
    void change(Kolt::ParameterPtr const& parameter, T const& value) {
        change(parameter, value, pools_.pool());
    }
    template <typename T>
    static void change(Kolt::ParameterPtr const& parameter, T const& value, ChosenPool::Pool const& pool) {
        Kolt::setParameterValue(*parameter, value, pool, std::string(), true, nullptr, nullptr);
    }

    static std::string textOf(Kolt::ParameterPtr const& parameter) { return parameter->ownValue()->Text(); }
    std::string localTextOf(Kolt::ParameterPtr const& parameter) const {
        auto const value = parameter->getLocalValue(pools_.pool(), std::string(), false);
        return value ? value->Text() : "(none)";
    }

    bool showPanel() {
        panel_->show();
        panel_->activateWindow();
        return waitUntil([&] { return panel_->isActiveWindow(); });
    }
    bool focus(QWidget* widget) {
        widget->setFocus();
        return waitUntil([&] { return widget->hasFocus(); });
    }

    /// A text of so many bytes, from a generator that starts the same every time.
    static std::string randomBytes(std::size_t size) {
        std::mt19937 generator(2023);
        std::string bytes(size, '\0');
        for (auto& byte : bytes)
            byte = static_cast<char>(generator() & 0xFFU);
        return bytes;
    }
    /// What is left of a text once it was shown.
    static std::string shown(std::string const& text) { return QString::fromStdString(text).toStdString(); }

    static std::string const missingOwner;

    Kolt::VInitialization host_;
    Kolt::PluginLoader loader_{host_};
    ChosenPool pools_;
    Listener listener_;
    Kolt::InputRef input_; ///< of the editor made last
    std::unique_ptr<QWidget> panel_;
};

inline std::string const TextEditorTest::missingOwner =
    "**POSSIBLE INTERNAL FAULT**: VInputBase without owner? That's not good.";
