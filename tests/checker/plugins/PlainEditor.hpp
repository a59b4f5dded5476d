#pragma once

#include <plugin/Plugin.hpp>
#include <plugin/QInputWidgetCreator.hpp>
#include <plugin/VInputValue.hpp>
#include <QSignalBlocker>
#include <QSpinBox>

/// A spin box that edits an int as it should. A plug-in of the checker's tests overrides what it does otherwise.
class PlainEditor : public QSpinBox, public Kolt::VInputValue<int> {
public:
    PlainEditor(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* pools)
        : QSpinBox(parent), Kolt::VInputValue<int>(parameter, pools), pools_(pools) {
        setRange(-1000000, 1000000);
    }

    /// Called last, when overridden functions can be called.
    virtual void open() {
        show(firstValue());
        connect(this, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int value) { write(value); });
        activateNotification();
    }
    /// Shows a value; nothing for one that is no int.
    virtual void show(Kolt::ValuePtr const& value) {
        if (cacheStored(value))
            display(cached_);
    }
    /// Writes what the user chose.
    virtual void write(int value) { commit(value); }
    /// Shows a number without writing it.
    void display(int number) {
        QSignalBlocker const blocker(this);
        QSpinBox::setValue(number);
    }

    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context, Kolt::ValueMap const*) override {
        if (arrivalOf(newValue, context) != Arrival::OtherPool)
            show(newValue);
    }

protected:
    Kolt::ValuePoolSource* pools_;
};

/// An editor that is opened when all of it was made.
template <typename Editor>
class Opened : public Editor {
public:
    Opened(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* pools,
           Kolt::PreferencesPtr const&)
        : Editor(parameter, parent, pools) {
        this->open();
    }
};

/// Registers the editor and makes the library the plug-in of this name.
#define PLANT(Editor, name)                                                                                            \
    TALO_STATIC_CREATOR Kolt::QInputWidgetCreator<int, Opened<Editor>> const plantedCreator(                           \
        #name, Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string(#name))));                              \
    TALO_PLUGIN(name)

/// A creator whose widgets are made by a function of the plug-in's own: `make(parameter, parent, pools)`.
template <typename Make>
class FunctionCreator : public Kolt::VInputCreator<int, Kolt::VInputCreatorBase> {
public:
    FunctionCreator(std::string const& name, Make make)
        : VInputCreator(name, 0, Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("QT"), name)),
                        "TALO_API_VERSION") {
        addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new Interface(make)));
    }

    /// What makes the widgets.
    class Interface : public Kolt::QInputCreator {
    public:
        explicit Interface(Make make) : make_(make) {}
        std::pair<QPointer<QWidget>, Kolt::InputRef> create(Kolt::ParameterRef const& parameter, QWidget* parent,
                                                            Kolt::ValuePoolSource* pools) override {
            return make_(parameter, parent, pools);
        }

    private:
        Make const make_;
    };
};

/// The plain editor, opened.
inline std::pair<QPointer<QWidget>, Kolt::InputRef> plainEditor(Kolt::ParameterRef const& parameter, QWidget* parent,
                                                                Kolt::ValuePoolSource* pools) {
    auto* const editor = new Opened<PlainEditor>(parameter, parent, pools, nullptr);
    Kolt::VInputBase* const input = editor;
    return {editor, Kolt::InputRef(input)};
}
