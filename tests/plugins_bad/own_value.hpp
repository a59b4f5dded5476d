#pragma once

#include <functional>
#include <lattice/UndoAction.hpp>
#include <lattice/ValueBase.hpp>
#include <tessera/Interface.hpp>

/// The interface through which a test uses the plug-in own_value; its creator carries it. Everything that it makes may
/// outlive the plug-in, if the host lets it.
struct OwnValueWorkshop : Tessera::Interface<OwnValueWorkshop> {
    /// A value of a type of the plug-in.
    virtual Kolt::ValuePtr makeOwnType() = 0;
    /// An int in an object of a class of the plug-in.
    virtual Kolt::ValuePtr makeOwnClass() = 0;
    /// An int, as a host makes it.
    virtual Kolt::ValuePtr makeNumber() = 0;
    /// An undo record of a class of the plug-in.
    virtual Tessera::StrongPtr<Kolt::VUndoAction> makeRecord() = 0;
    /// A value with an action of the host whose handler is code of the plug-in.
    virtual Kolt::ValuePtr makeAction() = 0;
    /// Calls the function while the plug-in's code is on the stack.
    virtual void call(std::function<void()> const& function) = 0;
};
