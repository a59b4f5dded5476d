#include "support/TestHost.hpp"

#include <QLabel>
#include <sorrel/InputFrontEnd.hpp>

namespace Sample {

struct Figure {
    int corners = 3;
    bool operator==(Figure const& other) const { return corners == other.corners; }
};

/// An editor that records the values that it is given.
class ShapeEditor : public QLabel, public Kolt::VInputBase {
public:
    ShapeEditor(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* poolSource)
        : QLabel(parent), VInputBase(parameter), source(poolSource) {
        activateNotification();
    }
    void onValueChange(Kolt::ValuePtr const& value, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override {
        corners.push_back(Kolt::valueOr(value, Sample::Figure{-1}).corners);
        pool = context.pool();
        EXPECT_EQ(properties, nullptr);
    }
    std::vector<int> corners;
    Kolt::PoolPtr pool;
    Kolt::ValuePoolSource* source;
};

struct ShapeCreator : Kolt::VInputCreator<Figure, Kolt::VInputCreatorBase> {
    explicit ShapeCreator(
        Kolt::PreferencesPtr const& preferences = Kolt::PreferencesPtr(new Kolt::VCreationPreferences("QT")))
        : VInputCreator("shape", 0, preferences, "TALO_API_VERSION") {}
};

struct WidgetMaker : Kolt::QInputCreator {
    std::pair<QPointer<QWidget>, Kolt::InputRef> create(Kolt::ParameterRef const& parameter, QWidget* parent,
                                                        Kolt::ValuePoolSource* poolSource) override {
        auto* const editor = new ShapeEditor(parameter, parent, poolSource);
        return {editor, Kolt::InputRef(editor)};
    }
};

} // namespace Sample

namespace {

using Kolt::makeEditor;
using Kolt::makeValue;
using Kolt::ParameterPtr;
using Kolt::PoolPtr;
using Kolt::ValuePool;
using Kolt::VParameter;
using Sample::Figure;
using Sample::ShapeCreator;
using Sample::ShapeEditor;
using testing::ElementsAre;
using testing::IsEmpty;

class FrontEnd : public TaloTest {
protected:
    void makeWidgets() { creator_.addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new Sample::WidgetMaker)); }
    static ParameterPtr parameter(VParameter::Values values) {
        return ParameterPtr(new VParameter("shape", makeValue(Figure{4}), values));
    }
    static ShapeEditor& shown(Kolt::Editor const& editor) { return dynamic_cast<ShapeEditor&>(*editor.widget); }
    static void setLocal(ParameterPtr const& parameter, PoolPtr const& pool, int corners) {
        EXPECT_TRUE(setParameterValue(*parameter, Figure{corners}, pool, "", true, {}, nullptr));
    }

    ShapeCreator creator_;
    TestPools pools_;
    RecordedWarnings warnings_;
    PoolPtr const first_{new ValuePool("first")};
    PoolPtr const second_{new ValuePool("second")};
    QWidget parent_;
};

TEST_F(FrontEnd, MakesTheEditorOnItsParentWithTheSource) {
    makeWidgets();
    auto const shape = parameter(VParameter::Values::Shared);
    pools_.use(first_);
    auto const editor = makeEditor(shape, &parent_, &pools_);
    ASSERT_TRUE(editor.widget);
    EXPECT_EQ(editor.widget->parent(), &parent_);
    EXPECT_EQ(currentPool(shown(editor).source), first_);
    pools_.use(second_);
    EXPECT_EQ(currentPool(shown(editor).source), second_);
    EXPECT_EQ(editor.input.strong().get(), static_cast<Kolt::VInputBase*>(&shown(editor)));
    EXPECT_EQ(editor.input.strong()->owner().strong(), shape);
    EXPECT_EQ(editor.choice.creator.strong().get(), &creator_);
    EXPECT_EQ(editor.choice.explanation,
              "\"shape\" {QT} holds all of the wanted {QT}, of 1 creator for Sample::Figure");
    EXPECT_THAT(shown(editor).corners, IsEmpty()) << "a value that is the same in every pool needs no second look";
}

TEST_F(FrontEnd, SaysThatAnEditorWithoutAPoolDropsEveryEdit) {
    makeWidgets();
    auto const shape = parameter(VParameter::Values::Shared);
    std::string const found = "\"shape\" {QT} holds all of the wanted {QT}, of 1 creator for Sample::Figure";
    auto const withoutPool = makeEditor(shape, &parent_, &pools_);
    EXPECT_TRUE(withoutPool.widget);
    EXPECT_EQ(withoutPool.choice.explanation, found + ", but it drops every edit as long as its source has no pool");
    EXPECT_THAT(warnings_.texts, IsEmpty()) << "a pool may be chosen later";

    auto const withoutSource = makeEditor(shape, &parent_, nullptr);
    EXPECT_TRUE(withoutSource.widget);
    EXPECT_EQ(withoutSource.choice.explanation, found + ", but without a pool source it drops every edit");
    EXPECT_THAT(warnings_.texts, ElementsAre("The editor of the parameter \"shape\" has no pool source: it drops every "
                                             "edit"));
}

TEST_F(FrontEnd, TheInputGoesWithTheWidget) {
    makeWidgets();
    auto const editor = makeEditor(parameter(VParameter::Values::Shared), &parent_, &pools_);
    delete editor.widget;
    EXPECT_FALSE(editor.widget);
    EXPECT_FALSE(editor.input);
}

TEST_F(FrontEnd, SaysWhyThereIsNoEditor) {
    auto const none = makeEditor(nullptr, &parent_, &pools_);
    EXPECT_FALSE(none.widget);
    EXPECT_EQ(none.choice.explanation, "there is no parameter");

    auto const unknown = makeEditor(ParameterPtr(new VParameter("n", makeValue(1))), &parent_, &pools_);
    EXPECT_FALSE(unknown.widget);
    EXPECT_EQ(unknown.choice.explanation, "no creator is registered for int");
    EXPECT_FALSE(unknown.choice.creator);

    auto const noWidget = makeEditor(parameter(VParameter::Values::Shared), &parent_, &pools_);
    EXPECT_FALSE(noWidget.widget);
    EXPECT_FALSE(noWidget.input);
    EXPECT_EQ(noWidget.choice.explanation, "\"shape\" {QT} holds all of the wanted {QT}, of 1 creator for "
                                           "Sample::Figure, but it makes no Qt widgets");
}

TEST_F(FrontEnd, ANewEditorIsHandedWhatThePoolHolds) {
    makeWidgets();
    auto const shape = parameter(VParameter::Values::PerPool);
    setLocal(shape, first_, 6);
    pools_.use(first_);
    auto const editor = makeEditor(shape, &parent_, &pools_);
    EXPECT_THAT(shown(editor).corners, ElementsAre(6));
    EXPECT_EQ(shown(editor).pool, first_);
}

TEST_F(FrontEnd, AnEditorIsHandedTheValueOfEachPoolItIsSwitchedToOrElseTheOwn) {
    makeWidgets();
    auto const shape = parameter(VParameter::Values::PerPool);
    setLocal(shape, first_, 6);
    pools_.use(first_);
    auto const editor = makeEditor(shape, &parent_, &pools_);
    pools_.use(second_);
    showPoolValue(editor, shape, &pools_);
    EXPECT_EQ(shown(editor).pool, second_);
    pools_.use(nullptr);
    showPoolValue(editor, shape, &pools_);
    EXPECT_FALSE(shown(editor).pool);
    pools_.use(first_);
    showPoolValue(editor, shape, &pools_);
    showPoolValue(editor, shape, nullptr);
    EXPECT_THAT(shown(editor).corners, ElementsAre(6, 4, 4, 6, 4));
    EXPECT_FALSE(shape->getLocalValue(second_, "", false)) << "to show writes nothing";
}

TEST_F(FrontEnd, SharedValuesAndMissingEditorsAreLeftAlone) {
    makeWidgets();
    auto const shape = parameter(VParameter::Values::Shared);
    auto const editor = makeEditor(shape, &parent_, &pools_);
    pools_.use(first_);
    showPoolValue(editor, shape, &pools_);
    EXPECT_THAT(shown(editor).corners, IsEmpty());
    showPoolValue(Kolt::Editor(), shape, &pools_);
    auto const perPool = parameter(VParameter::Values::PerPool);
    showPoolValue(editor, nullptr, &pools_);
    delete editor.widget;
    showPoolValue(editor, perPool, &pools_);
    EXPECT_FALSE(perPool->getLocalValue(first_, "", false));
}

TEST_F(FrontEnd, AnEditorOfAValueThatIsNotOfItsTypeIsStillMade) {
    makeWidgets();
    ParameterPtr const odd(new VParameter("odd", makeValue(1), VParameter::Values::Shared, "Sample::Figure"));
    auto const editor = makeEditor(odd, &parent_, &pools_);
    EXPECT_TRUE(editor.widget) << "the declared type chooses the editor";
}

} // namespace
