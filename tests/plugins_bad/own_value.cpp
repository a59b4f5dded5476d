// Makes values, records and interfaces of its own, which a host may keep for too long.
#include <bramble/Action.hpp>
#include <lattice/Initialization.hpp>
#include <lattice/UndoAction.hpp>
#include <lattice/Value.hpp>
#include <plugins_bad/EmptyCreator.hpp>
#include <plugins_bad/own_value.hpp>
#include <tessera/MakeStrong.hpp>

namespace OwnValue {

struct Vector {
    double x = 0;
    double y = 0;
    bool operator==(Vector const& other) const { return x == other.x && y == other.y; }
};

struct Number : Kolt::VTypedValueBase<int> {
    bool get(int& out) const override {
        out = number;
        return true;
    }
    bool set(int const& value) override {
        number = value;
        return true;
    }
    Kolt::ValuePtr clone() const override { return Kolt::makeValue(number); }
    int number = 7;
};

struct Record : Kolt::VUndoAction {
    Record() : VUndoAction("a record of the plug-in") {}
    bool undo() override { return true; }
};

struct Workshop : OwnValueWorkshop {
    Kolt::ValuePtr makeOwnType() override { return Kolt::makeValue(Vector{1, 2}); }
    Kolt::ValuePtr makeOwnClass() override { return Kolt::ValuePtr(new Number); }
    Kolt::ValuePtr makeNumber() override { return Kolt::makeValue(42); }
    Tessera::StrongPtr<Kolt::VUndoAction> makeRecord() override {
        return Tessera::StrongPtr<Kolt::VUndoAction>(new Record);
    }
    Kolt::ValuePtr makeAction() override {
        auto const doNothing = [](Kolt::PoolPtr const&, Kolt::ParameterPtr const&) {};
        return Kolt::makeValue(Tessera::makeStrong<Kolt::VAction>("do nothing", doNothing));
    }
    void call(std::function<void()> const& function) override { function(); }
};

struct Creator : EmptyCreator {
    Creator() : EmptyCreator("own value") { addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new Workshop)); }
};

} // namespace OwnValue

static OwnValue::Creator const creator;
// Of the plug-in alone: nobody else refers to it.
static Kolt::ValuePtr const origin = Kolt::makeValue(OwnValue::Vector{});

extern "C" __attribute__((visibility("default"))) bool
TALO_API_2023_MAR_29__own_value(Kolt::VInitialization const* host) {
    return origin != nullptr && host->IsCompatible("TALO_API_VERSION");
}
