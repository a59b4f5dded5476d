#include "host/signature.hpp"
#include "support/TaloTest.hpp"

#include <QLabel>
#include <sorrel/InputFrontEnd.hpp>
#include <sorrel/QIconizer.hpp>
#include <sorrel/QInputCreator.hpp>
#include <sorrel/QLeaveLineEdit.hpp>
#include <type_traits>

namespace {

using namespace Kolt;
using std::is_base_of_v;
using Tessera::Interface;
using Tessera::StrongPtr;
using Tessera::WeakPtr;

using WeakObject = WeakPtr<VObject, VManagedObjectBase>;
using Provider = StrongPtr<ValuePoolProvider>;

static_assert(is_base_of_v<Interface<QInputCreator>, QInputCreator>);
static_assert(hasSignature<std::pair<QPointer<QWidget>, WeakPtr<VInputBase, ValueNotifier>> (QInputCreator::*)(
                  WeakPtr<VParameter, ValueNotifierList> const&, QWidget*, ValuePoolSource*)>(&QInputCreator::create));
static_assert(is_base_of_v<Interface<QIconizer>, QIconizer>);
static_assert(
    hasSignature<VIcon* (QIconizer::*)(QWidget*, WeakObject const&, Provider const&)>(&QIconizer::createIcon));
static_assert(is_base_of_v<QLineEdit, QLeaveLineEdit>);

struct Icon : VIcon {
    using VIcon::VIcon;
    QWidget* widget() override { return &label; }
    QLabel label;
};
static_assert(std::is_constructible_v<Icon, WeakObject const&, Provider const&>);

struct Iconizer : QIconizer {
    VIcon* createIcon(QWidget*, WeakObject const& object, Provider const& provider) override {
        return new Icon(object, provider);
    }
};

struct Creator : QInputCreator {
    std::pair<QPointer<QWidget>, InputRef> create(WeakPtr<VParameter, ValueNotifierList> const&, QWidget*,
                                                  ValuePoolSource*) override {
        return {};
    }
};

class SorrelSignatures : public TaloTest {};

TEST_F(SorrelSignatures, AnIconKnowsItsObjectWeaklyAndItsProvider) {
    ObjectPtr object(new VObject("object"));
    StrongPtr<Iconizer, Tessera::InterfaceBase> const iconizer(new Iconizer);
    std::unique_ptr<VIcon> const icon(iconizer->createIcon(nullptr, object, nullptr));
    EXPECT_EQ(icon->object().strong(), object);
    EXPECT_FALSE(icon->provider());
    object.reset();
    EXPECT_FALSE(icon->object());
}

TEST_F(SorrelSignatures, ACreatorHasNoHintUnlessItSaysSo) {
    EXPECT_EQ(Creator().hint(), QString());
    EXPECT_EQ(Creator().interfaceType(), typeid(QInputCreator)) << "found as what it is, not as the derived class";
}

} // namespace
