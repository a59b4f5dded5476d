#include "support/TaloTest.hpp"
#include <lattice/InputRegistry.hpp>
#include <plugin/QInputWidgetCreator.hpp>
#include <plugin/VInputValue.hpp>

namespace {

using namespace Kolt;
using testing::ElementsAre;
using Names = VCreationPreferences::Names;

/// Keeps what it was made with.
class Widget : public QWidget, public VInputValue<int> {
public:
    Widget(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
           PreferencesPtr const& preferences)
        : QWidget(parent), VInputValue<int>(parameter, poolSource), received(preferences) {}
    void onValueChange(ValuePtr const&, VContext const&, ValueMap const*) override {}

    PreferencesPtr const received;
};

using Creator = QInputWidgetCreator<int, Widget>;

class InputWidgetCreator : public TaloTest {
protected:
    std::pair<QPointer<QWidget>, InputRef> make(Creator const& creator) {
        return creator.getInterface<QInputCreator>()->create(parameter_, &parent_, nullptr);
    }

    QWidget parent_;
    ParameterPtr const parameter_{new VParameter("number", makeValue(3))};
};

} // namespace

TEST_F(InputWidgetCreator, KeepsTheSetThatItIsGivenAndAddsQtToIt) {
    PreferencesPtr const given(new VCreationPreferences("dial"));
    Creator const creator("number", given);
    EXPECT_EQ(creator.preferences(), given);
    EXPECT_THAT(given->names(), ElementsAre("QT", "dial"));
}

TEST_F(InputWidgetCreator, MakesASetWhereNoneIsGiven) {
    Creator const first("first", nullptr);
    Creator const second("second", nullptr);
    EXPECT_THAT(first.preferences()->names(), ElementsAre("QT"));
    EXPECT_NE(first.preferences(), second.preferences());
}

TEST_F(InputWidgetCreator, GivesTheWidgetItsOwnSetAndNoCopy) {
    Creator const creator("number", PreferencesPtr(new VCreationPreferences("dial")));
    auto const made = make(creator);
    auto* const widget = dynamic_cast<Widget*>(made.first.data());
    ASSERT_TRUE(widget);
    EXPECT_EQ(widget->received, creator.preferences());
    EXPECT_EQ(widget->parentWidget(), &parent_);
    EXPECT_EQ(widget->owner(), ParameterRef(parameter_));
    EXPECT_EQ(made.second.strong().get(), widget);
}

TEST_F(InputWidgetCreator, IsRegisteredWithoutQtAndWantsNoPriority) {
    Creator const creator("number", nullptr);
    EXPECT_EQ(creator.priority(), 0);
    EXPECT_EQ(creator.apiKey(), "TALO_API_VERSION");
    auto const entries = InputRegistry::theRegistry().entries();
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries.front().valueType, "int");
    EXPECT_EQ(entries.front().creator.strong().get(), &creator);
}

TEST_F(InputWidgetCreator, OfEqualOnesTheHighestPriorityEdits) {
    for (bool const isFirst : {true, false}) {
        auto const usual = [] { return std::make_unique<Creator>("usual", nullptr); };
        auto const better = [] { return std::make_unique<Creator>("better", nullptr, 5); };
        auto const one = isFirst ? better() : usual();
        auto const other = isFirst ? usual() : better();
        auto const choice = InputRegistry::theRegistry().choose(*parameter_, {"QT"});
        EXPECT_EQ(choice.creator.strong()->Name(), "better") << "whatever is registered first";
    }
}
