#pragma once

#include "support/TestHost.hpp"
#include <QVBoxLayout>
#include <random>

/// Edits parameters with editors from a named creator, in the layout of the parent.
class TextEditorTest : public PluginTest {
protected:
    using Values = Kolt::VParameter::Values;
    using Parameter = Kolt::ParameterRef;

    void SetUp() override {
        PluginTest::SetUp();
        parent->setLayout(new QVBoxLayout);
    }

    template <typename T>
    static Kolt::ParameterPtr makeValueParameter(T const& value, Values values = Values::Shared) {
        return makeParameter("network.parameter", Kolt::makeValue(value), {}, values);
    }
    static Kolt::ParameterPtr makeText(std::string const& text, Values values = Values::Shared) {
        return makeValueParameter(text, values);
    }

    static Tessera::StrongPtr<Kolt::VInputCreatorBase, Kolt::VManagedObjectBase> creator(std::string const& name) {
        for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
            auto found = entry.creator.strong();
            if (found->Name() == name)
                return found;
        }
        throw std::runtime_error("no creator is called " + name);
    }

    /// Creates an editor with the named creator.
    template <typename Widget>
    Widget* create(std::string const& creatorName, Parameter const& parameter) {
        auto const made = creator(creatorName)->getInterface<Kolt::QInputCreator>()->create(parameter, parent, &pools);
        input = made.second;
        parent->layout()->addWidget(made.first);
        return dynamic_cast<Widget*>(made.first.data());
    }

    void watch(Kolt::ParameterPtr const& parameter) {
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    }

    /// Stores a value in the first pool as the host does, and notifies.
    template <typename T>
    void change(Kolt::ParameterPtr const& parameter, T const& value) {
        change(parameter, value, firstPool);
    }
    template <typename T>
    static void change(Kolt::ParameterPtr const& parameter, T const& value, Kolt::PoolPtr const& pool) {
        EXPECT_TRUE(Kolt::setParameterValue(*parameter, value, pool, std::string(), true, nullptr, nullptr));
    }

    static std::string textOf(Kolt::ParameterPtr const& parameter) { return parameter->ownValue()->Text(); }
    /// The text of the current pool's value.
    std::string localTextOf(Kolt::ParameterPtr const& parameter) const {
        auto const value = parameter->getLocalValue(Kolt::currentPool(&pools), std::string(), false);
        return value ? value->Text() : "(none)";
    }

    bool showPanel() {
        parent->show();
        parent->activateWindow();
        return waitUntil([&] { return parent->isActiveWindow(); });
    }
    static bool focus(QWidget* widget) {
        widget->setFocus();
        return waitUntil([&] { return widget->hasFocus(); });
    }

    /// A text of `size` random bytes, the same in every run.
    static std::string randomBytes(std::size_t size) {
        std::mt19937 generator(2023);
        std::string bytes(size, '\0');
        for (auto& byte : bytes)
            byte = static_cast<char>(generator() & 0xFFU);
        return bytes;
    }
    /// A text after conversion to a QString and back, as an editor shows it.
    static std::string shown(std::string const& text) { return QString::fromStdString(text).toStdString(); }

    /// The line about a missing owner, as written to standard output.
    std::string const missingOwner = std::string(missingOwnerLine) + '\n';

    RecordingNotifier recorder;
    Kolt::InputRef input; ///< of the editor that was created last
};
