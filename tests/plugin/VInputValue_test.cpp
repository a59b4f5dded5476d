#include "support/TestHost.hpp"

#include <QCheckBox>
#include <QTest>

using Values = Kolt::VParameter::Values;

namespace {

std::vector<std::string> selectedMembers;

/// A bool that refuses some stores, and does something whenever it is read.
class WatchedBool : public Kolt::VValue<bool> {
public:
    bool get(bool& out) const override {
        if (whenRead)
            whenRead();
        return VValue<bool>::get(out);
    }
    bool set(bool const& value) override {
        stores.push_back(value);
        return refusals-- <= 0 && VValue<bool>::set(value);
    }

    std::function<void()> whenRead;
    /// How many of the next stores are refused.
    int refusals = 0;
    /// What was to be stored, refused or not.
    std::vector<bool> stores;
};

/// The binding as the host sees it, tested with the built plug-in's boolean editor.
class VInputValueTest : public PluginTest {
protected:
    static Kolt::VInput<bool>& binding(Kolt::Editor const& editor) {
        return dynamic_cast<Kolt::VInput<bool>&>(*editor.input.strong());
    }
    Kolt::ParameterPtr boolean(Values values = Values::Shared, bool value = false) {
        return makeParameter("switch", Kolt::makeValue(value), {}, values);
    }
};

} // namespace

// A host with compound values prepares access here. This one takes the place of the library's, which does nothing.
void Kolt::VParameter::selectMember(std::string const& member) const {
    selectedMembers.push_back(member);
}

TEST_F(VInputValueTest, AWriteOfTheHeldValueStillNotifiesAndStamps) {
    auto const parameter = boolean(Values::Shared, true);
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const editor = open(parameter);
    auto* const box = editor.widget->findChild<QCheckBox*>();
    box->setChecked(false);
    auto const before = Tessera::Ageable::GlobalTime.load();
    QTest::mouseClick(box, Qt::LeftButton);
    EXPECT_EQ(recorder.values, std::vector<std::string>{"true"});
    EXPECT_TRUE(isStampedAfter(before, *parameter->ownValue()));
}

TEST_F(VInputValueTest, FetchCreatesNothingAndFailsWhereNothingIs) {
    auto const parameter = boolean(Values::PerPool, true);
    auto const editor = open(parameter);
    EXPECT_FALSE(binding(editor).fetchValue(firstPool, std::string()));
    EXPECT_FALSE(binding(editor).fetchValue(nullptr, std::string()));
    EXPECT_FALSE(parameter->getLocalValue(firstPool, std::string(), false));
    parameter->getLocalValue(firstPool, std::string(), true);
    EXPECT_TRUE(binding(editor).fetchValue(firstPool, std::string()));
}

TEST_F(VInputValueTest, GetCreatesTheValueFromTheOwnOne) {
    auto const parameter = boolean(Values::PerPool, true);
    auto const editor = open(parameter);
    bool out = false;
    EXPECT_TRUE(binding(editor).getValue(firstPool, std::string(), out));
    EXPECT_TRUE(out);
    EXPECT_TRUE(parameter->getLocalValue(firstPool, std::string(), false));
    out = false;
    EXPECT_FALSE(binding(editor).getValue(nullptr, std::string(), out));
    EXPECT_FALSE(out);
}

TEST_F(VInputValueTest, AReadSelectsTheMemberOfAValueThatIsThere) {
    auto const parameter = boolean(Values::PerPool, true);
    auto const editor = open(parameter);
    selectedMembers.clear();
    EXPECT_FALSE(binding(editor).fetchValue(firstPool, "absent"));
    EXPECT_EQ(selectedMembers, std::vector<std::string>());
    bool out = false;
    EXPECT_TRUE(binding(editor).getValue(firstPool, "got", out));
    EXPECT_TRUE(binding(editor).fetchValue(firstPool, "fetched"));
    EXPECT_EQ(selectedMembers, (std::vector<std::string>{"got", "fetched"}));
}

TEST_F(VInputValueTest, ARefusedStoreIsTriedOnceMoreByTheHostAndReported) {
    auto* const value = new WatchedBool;
    auto const parameter = makeParameter("switch", Kolt::ValuePtr(value));
    auto const editor = open(parameter);
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    value->refusals = 1;
    EXPECT_FALSE(binding(editor).setValue(firstPool, std::string(), true, nullptr)) << "what the first store said";
    EXPECT_EQ(value->stores, (std::vector<bool>{true, true}));
    EXPECT_EQ(recorder.values, std::vector<std::string>{"true"}) << "the second store was accepted";
    value->refusals = 2;
    EXPECT_FALSE(binding(editor).setValue(firstPool, std::string(), false, nullptr));
    EXPECT_EQ(value->stores, (std::vector<bool>{true, true, false, false}));
    EXPECT_EQ(recorder.values.size(), 1U);
    EXPECT_EQ(value->age(), 0U);
}

TEST_F(VInputValueTest, SetCreatesThePoolsValueAndLeavesTheOwnOneAlone) {
    auto const parameter = boolean(Values::PerPool);
    auto const editor = open(parameter);
    EXPECT_TRUE(binding(editor).setValue(secondPool, std::string(), true, nullptr));
    EXPECT_EQ(parameter->getLocalValue(secondPool, std::string(), false)->Text(), "true");
    EXPECT_EQ(parameter->ownValue()->Text(), "false");
    EXPECT_EQ(parameter->getLocalValue(secondPool, std::string(), false)->age(), 0U) << "a plain store does not stamp";
}

TEST_F(VInputValueTest, SetRefusesAnEmptyPool) {
    for (auto const values : {Values::Shared, Values::PerPool}) {
        auto const parameter = boolean(values);
        RecordingNotifier recorder;
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
        auto const editor = open(parameter);
        EXPECT_FALSE(binding(editor).setValue(nullptr, std::string(), true, nullptr));
        EXPECT_EQ(parameter->ownValue()->Text(), "false");
        EXPECT_TRUE(recorder.values.empty());
    }
}

TEST_F(VInputValueTest, SetWithoutAnOwnerRefusesPrintsNothingAndKeepsTheCache) {
    auto parameter = boolean();
    auto const editor = open(parameter);
    parameter.reset();
    EXPECT_FALSE(binding(editor).setValue(firstPool, std::string(), true, nullptr));
    EXPECT_TRUE(takeOutput().empty());
    bool out = true;
    EXPECT_FALSE(binding(editor).fetchValue(firstPool, std::string()));
    EXPECT_FALSE(binding(editor).getValue(firstPool, std::string(), out));
    EXPECT_TRUE(out);
}

TEST_F(VInputValueTest, SetReplacesAPoolsValueOfAnotherTypeByAFreshOne) {
    // The parameter's own value is a text, so the pool's copy is a text, too; the declared type is bool.
    auto const parameter = makeParameter("switch", Kolt::makeValue(std::string("text")), {}, Values::PerPool, "bool");
    auto const editor = open(parameter);
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    EXPECT_TRUE(binding(editor).setValue(firstPool, std::string(), true, nullptr));
    EXPECT_EQ(parameter->getLocalValue(firstPool, std::string(), false)->Text(), "true");
    EXPECT_EQ(parameter->ownValue()->Text(), "text");
    EXPECT_EQ(recorder.values, std::vector<std::string>{"true"});
}

TEST_F(VInputValueTest, ARefusedWriteLosesNothingThatAPoolHolds) {
    // The declared type is not the editor's, so no new value of the editor's type can be created.
    auto const other = makeParameter("text", Kolt::makeValue(std::string("text")), {}, Values::PerPool);
    other->getLocalValue(firstPool, std::string(), true)->setValueFromText("kept");
    auto const made = qtCreator("bool", "boolean")->create(other, parent, &pools);
    auto const input = made.second.strong();
    EXPECT_FALSE(dynamic_cast<Kolt::VInput<bool>&>(*input).setValue(firstPool, std::string(), true, nullptr));
    EXPECT_EQ(other->getLocalValue(firstPool, std::string(), false)->Text(), "kept");
}

TEST_F(VInputValueTest, SetRefusesASharedValueOfAnotherType) {
    auto const parameter = makeParameter("switch", Kolt::makeValue(std::string("text")), {}, Values::Shared, "bool");
    auto const editor = open(parameter);
    EXPECT_FALSE(binding(editor).setValue(firstPool, std::string(), true, nullptr));
    EXPECT_EQ(parameter->ownValue()->Text(), "text");
}

TEST_F(VInputValueTest, TheSourceIsNotNotifiedUnlessItAsksToBe) {
    auto const parameter = boolean();
    auto const editor = open(parameter);
    auto* const box = editor.widget->findChild<QCheckBox*>();
    EXPECT_TRUE(binding(editor).setValue(firstPool, std::string(), true, nullptr));
    EXPECT_FALSE(box->isChecked());
    Kolt::ValueNotifierList also;
    also.addNotifier(editor.input);
    EXPECT_TRUE(binding(editor).setValue(firstPool, std::string(), true, &also));
    EXPECT_TRUE(box->isChecked());
}

TEST_F(VInputValueTest, AnInputMayBeDeletedByTheNotificationOfItsOwnStore) {
    auto const parameter = boolean();
    auto const editor = open(parameter);
    RecordingNotifier recorder;
    recorder.reaction = [&] { delete editor.widget; };
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    EXPECT_TRUE(binding(editor).setValue(firstPool, std::string(), true, nullptr));
    EXPECT_FALSE(editor.widget);
    EXPECT_FALSE(editor.input);
    EXPECT_EQ(parameter->ownValue()->Text(), "true");
}

TEST_F(VInputValueTest, TheOwnerMayBeDeletedByTheNotificationOfAStore) {
    auto parameter = boolean();
    auto const editor = open(parameter);
    RecordingNotifier recorder;
    recorder.reaction = [&] { parameter.reset(); };
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    EXPECT_TRUE(binding(editor).setValue(firstPool, std::string(), true, nullptr));
    EXPECT_FALSE(binding(editor).setValue(firstPool, std::string(), true, nullptr));
    EXPECT_TRUE(takeOutput().empty());
}

TEST_F(VInputValueTest, NothingIsDeliveredBeforeTheInputShowsItsValue) {
    auto* const value = new WatchedBool;
    auto const parameter = makeParameter("switch", Kolt::ValuePtr(value));
    std::vector<std::size_t> listening;
    value->whenRead = [&] { listening.push_back(parameter->size()); };
    auto const editor = open(parameter);
    value->whenRead = nullptr;
    EXPECT_EQ(listening, std::vector<std::size_t>{0U});
    EXPECT_EQ(parameter->size(), 1U);
}

TEST_F(VInputValueTest, DeliveryStartsWithTheLastStepOfConstructionAndEndsWithTheInput) {
    auto const parameter = boolean();
    EXPECT_EQ(parameter->size(), 0U);
    auto const editor = open(parameter);
    EXPECT_EQ(parameter->size(), 1U);
    delete editor.widget;
    EXPECT_EQ(parameter->size(), 0U);
}
