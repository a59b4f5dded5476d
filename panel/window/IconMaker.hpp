#pragma once

#include <lattice/Object.hpp>
#include <lattice/ValuePoolSource.hpp>
#include <QWidget>
#include <set>
#include <string>

namespace Panel {

/// An icon and the parameter that it shows; both null for an object without an icon.
struct ObjectIcon {
    QWidget* widget = nullptr;
    Kolt::ParameterPtr parameter;
};

/// Makes the icons of objects. An icon comes from the input of one of the object's parameters, and an input comes with
/// its editor; so an editor is made out of sight, asked, and deleted. All inputs of one creator are alike in this: a
/// creator whose inputs make no icons is asked once only. User-interface thread.
class IconMaker {
public:
    /// `pools` must outlive the icons.
    explicit IconMaker(Kolt::ValuePoolSource& pools) : pools_(pools) {}

    /// The icon of the object's first parameter that can be shown as one, as a child of `parent`; null when there is
    /// none. Like every making of an editor it may add missing properties to a parameter.
    ObjectIcon makeIcon(Kolt::ObjectPtr const& object, QWidget* parent);
    /// Forgets what it knows of the creators, as before plug-ins are loaded or unloaded.
    void forgetCreators() { withoutIcons_.clear(); }

private:
    QWidget* makeIcon(Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter, QWidget* parent);

    Kolt::ValuePoolSource& pools_;
    // Addresses of creators, for comparison alone.
    std::set<void const*> withoutIcons_;
};

} // namespace Panel
