#include "EditorCase.hpp"
#include "support/TestHost.hpp"

#include <algorithm>

using Kolt::ParameterPtr;
using Values = Kolt::VParameter::Values;

namespace {

class EditorContract : public PluginTest, public testing::WithParamInterface<EditorCase> {
protected:
    EditorCase const& editorCase() const { return GetParam(); }

    ParameterPtr parameterWith(Kolt::ValuePtr const& value, Values values = Values::Shared) {
        auto declaredType = editorCase().declaredType;
        if (declaredType.empty())
            declaredType = Tessera::Typename(editorCase().makeValue(0)->valueType());
        return makeParameter("object.parameter", value, editorCase().preferences, values, declaredType);
    }
    ParameterPtr parameterWith(int n, Values values = Values::Shared) {
        return parameterWith(editorCase().makeValue(n), values);
    }
    /// A reference to a destroyed parameter.
    Kolt::ParameterRef deadParameter() { return parameterWith(0); }

    void expectShown(Kolt::Editor const& editor, Kolt::VValueBase const& value) {
        if (editorCase().showsValue) {
            EXPECT_EQ(editorCase().shown(*editor.widget), editorCase().expected(value));
        }
    }
    /// Changes the value object to the n-th value and notifies, as another editor does.
    void changeElsewhere(ParameterPtr const& parameter, Kolt::ValuePtr const& value, int n, Kolt::PoolPtr const& pool) {
        editorCase().change(*value, n);
        parameter->notifyValueChange(value, pool, std::string(), nullptr, nullptr, nullptr);
    }
    /// What was printed, without the editor's trace.
    std::vector<std::string> printed() {
        auto lines = takeOutput();
        lines.erase(
            std::remove_if(lines.begin(), lines.end(),
                           [&](auto const& line) { return !editorCase().trace.empty() && line == editorCase().trace; }),
            lines.end());
        return lines;
    }
    static std::size_t undoSteps() { return Kolt::UndoHistory::theHistory().steps().size(); }
    /// A type of values that no editor supports.
    struct Unknown {
        bool operator==(Unknown const&) const { return true; }
    };

    void SetUp() override {
        PluginTest::SetUp();
#ifdef TALO_MORE_PLUGIN_FILE
        auto const outcome = loader.load(TALO_MORE_PLUGIN_FILE);
        ASSERT_TRUE(outcome.ok) << outcome.message;
#endif
    }

    void TearDown() override {
        EXPECT_TRUE(printed().empty()) << "an unexpected line";
        PluginTest::TearDown();
#ifdef TALO_MORE_PLUGIN_FILE
        auto const outcome = loader.unload(TALO_MORE_PLUGIN_FILE);
        EXPECT_TRUE(outcome.ok) << outcome.message;
#endif
    }
};

class EditableContract : public EditorContract {
protected:
    void edit(Kolt::Editor const& editor) { editorCase().edit(*editor.widget); }
};

class WritingContract : public EditableContract {};

} // namespace

TEST_P(EditorContract, TheCreatorIsChosen) {
    auto const parameter = parameterWith(0);
    auto const editor = open(parameter);
    ASSERT_TRUE(editor.widget);
    EXPECT_EQ(editor.choice.creator.strong()->Name(), editorCase().creator);
    EXPECT_TRUE(editor.input);
}

TEST_P(EditorContract, OpeningShowsTheValueAndWritesNothing) {
    for (int n = 0; n < 3; ++n) {
        auto const parameter = parameterWith(n);
        auto const before = parameter->ownValue()->Text();
        RecordingNotifier recorder;
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));

        auto const editor = open(parameter);
        expectShown(editor, *parameter->ownValue());
        EXPECT_EQ(parameter->ownValue()->Text(), before);
        EXPECT_EQ(parameter->ownValue()->age(), 0U);
        EXPECT_TRUE(recorder.values.empty());
        EXPECT_EQ(undoSteps(), 0U);
        EXPECT_TRUE(warnings.texts.empty());
        EXPECT_TRUE(printed().empty());

        std::vector<std::string> properties;
        if (parameter->properties()) {
            for (auto const& property : *parameter->properties())
                properties.push_back(property.first);
        }
        auto added = editorCase().addedProperties;
        std::sort(added.begin(), added.end());
        EXPECT_EQ(properties, added);
    }
}

TEST_P(EditorContract, NothingIsDeliveredBeforeTheEditorIsMade) {
    auto const parameter = parameterWith(0);
    RecordingNotifier recorder;
    std::vector<std::size_t> listening;
    recorder.reaction = [&] { listening.push_back(parameter->size()); };
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const editor = open(parameter);
    EXPECT_EQ(listening, std::vector<std::size_t>(editorCase().addedProperties.size(), 1U)) << "the recorder alone";
    EXPECT_EQ(parameter->size(), 2U);
}

TEST_P(EditorContract, AChangeFromElsewhereIsShownAndNotSentBack) {
    auto const parameter = parameterWith(0);
    auto const editor = open(parameter);
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    for (int n : {1, 2, 0, 0}) {
        changeElsewhere(parameter, parameter->ownValue(), n, firstPool);
        expectShown(editor, *editorCase().makeValue(n));
        EXPECT_EQ(parameter->ownValue()->Text(), editorCase().makeValue(n)->Text());
    }
    EXPECT_EQ(parameter->ownValue()->age() > 0, editorCase().commitsWhatItShows);
    EXPECT_EQ(undoSteps(), 0U);
    EXPECT_TRUE(printed().empty());
}

TEST_P(EditorContract, AValueOfAnotherTypeIsIgnored) {
    auto const parameter = parameterWith(1);
    auto const editor = open(parameter);
    auto const input = editor.input.strong();
    input->onValueChange(Kolt::makeValue(Unknown()), Kolt::VContext(firstPool, nullptr), nullptr);
    expectShown(editor, *editorCase().makeValue(1));
    input->onValueChange(nullptr, Kolt::VContext(nullptr), nullptr);
    expectShown(editor, *editorCase().makeValue(1));
    EXPECT_TRUE(printed().empty());
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_P(EditorContract, AParameterWithAValueOfAnotherTypeOpens) {
    auto const parameter = parameterWith(Kolt::makeValue(Unknown()));
    auto const editor = open(parameter);
    ASSERT_TRUE(editor.widget);
    EXPECT_EQ(warnings.texts, editorCase().warningsForOtherType);
    if (editorCase().edit)
        editorCase().edit(*editor.widget);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_NE(dynamic_cast<Kolt::VValue<Unknown>*>(parameter->ownValue().get()), nullptr);
    EXPECT_TRUE(printed().empty());
}

TEST_P(EditorContract, AnEditorForAParameterThatIsGoneOpens) {
    auto const valueType = editorCase().declaredType.empty() ? Tessera::Typename(editorCase().makeValue(0)->valueType())
                                                             : editorCase().declaredType;
    auto const creator = qtCreator(valueType, editorCase().creator, editorCase().preferences);
    ASSERT_TRUE(creator);
    auto const made = creator->create(deadParameter(), parent, &pools);
    ASSERT_TRUE(made.first);
    made.first->show();
    EXPECT_TRUE(printed().empty()) << "a constructor prints nothing";
    EXPECT_EQ(warnings.texts, editorCase().warningsWithoutOwner);
    if (!editorCase().edit)
        return;
    editorCase().edit(*made.first);
    EXPECT_EQ(printed(), editorCase().editableWithoutOwner ? std::vector<std::string>{missingOwnerLine}
                                                           : std::vector<std::string>());
}

TEST_P(EditorContract, EachPoolShowsItsOwnValue) {
    auto const parameter = parameterWith(0, Values::PerPool);
    editorCase().change(*parameter->getLocalValue(firstPool, std::string(), true), 1);
    auto const editor = open(parameter);
    expectShown(editor, *editorCase().makeValue(1));

    pools.use(secondPool);
    Kolt::showPoolValue(editor, parameter, &pools);
    expectShown(editor, *editorCase().makeValue(0));
    if (!editorCase().commitsWhatItShows) {
        EXPECT_FALSE(parameter->getLocalValue(secondPool, std::string(), false)) << "looking creates nothing";
    }

    pools.use(firstPool);
    Kolt::showPoolValue(editor, parameter, &pools);
    expectShown(editor, *editorCase().makeValue(1));
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_TRUE(printed().empty());
}

TEST_P(EditorContract, AChangeInAnotherPoolIsNotShown) {
    auto const parameter = parameterWith(0, Values::PerPool);
    editorCase().change(*parameter->getLocalValue(firstPool, std::string(), true), 1);
    auto const editor = open(parameter);

    changeElsewhere(parameter, parameter->getLocalValue(secondPool, std::string(), true), 2, secondPool);
    expectShown(editor, *editorCase().makeValue(1));
    changeElsewhere(parameter, parameter->ownValue(), 2, nullptr);
    expectShown(editor, *editorCase().makeValue(1));
    changeElsewhere(parameter, parameter->getLocalValue(firstPool, std::string(), false), 2, firstPool);
    expectShown(editor, *editorCase().makeValue(2));
    EXPECT_TRUE(printed().empty());
}

TEST_P(EditorContract, TheEditorMayDieInsideANotification) {
    auto const parameter = parameterWith(0);
    auto const first = open(parameter);
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const second = open(parameter);
    QPointer<QWidget> const doomed = second.widget;
    recorder.reaction = [&] { delete doomed; };
    changeElsewhere(parameter, parameter->ownValue(), 1, firstPool);
    EXPECT_FALSE(doomed);
    EXPECT_FALSE(second.input);
    expectShown(first, *editorCase().makeValue(1));
}

TEST_P(EditableContract, WithoutAPoolNothingIsWritten) {
    auto const parameter = parameterWith(0);
    auto const before = parameter->ownValue()->Text();
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const editor = open(parameter);
    pools.use(nullptr);
    edit(editor);
    pools.dropProvider();
    edit(editor);
    if (!editorCase().changesInPlace) {
        EXPECT_EQ(parameter->ownValue()->Text(), before);
    }
    EXPECT_TRUE(recorder.values.empty());
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_EQ(undoSteps(), 0U);
    EXPECT_TRUE(printed().empty());
}

TEST_P(EditableContract, WithoutAPoolSourceNothingIsWritten) {
    auto const parameter = parameterWith(0);
    auto const editor = Kolt::makeEditor(parameter, parent, nullptr);
    ASSERT_TRUE(editor.widget);
    editor.widget->show();
    warnings.texts.clear();
    edit(editor);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_TRUE(printed().empty());
}

TEST_P(EditableContract, AParameterThatWentIsReportedOnceForEachEdit) {
    auto parameter = parameterWith(0);
    auto const editor = open(parameter);
    parameter.reset();
    edit(editor);
    std::vector<std::string> const expected{missingOwnerLine};
    EXPECT_EQ(printed(), expected);
    pools.use(nullptr);
    edit(editor);
    EXPECT_EQ(printed(), editorCase().reportsMissingOwnerWithoutPool ? expected : std::vector<std::string>());
}

TEST_P(WritingContract, AnEditIsStoredNotifiedOnceAndStamped) {
    auto const parameter = parameterWith(0);
    auto const before = parameter->ownValue()->Text();
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const editor = open(parameter);
    auto const time = Tessera::Ageable::GlobalTime.load();
    edit(editor);
    EXPECT_NE(parameter->ownValue()->Text(), before);
    expectShown(editor, *parameter->ownValue());
    ASSERT_EQ(recorder.values.size(), 1U);
    EXPECT_EQ(recorder.values.back(), parameter->ownValue()->Text());
    EXPECT_EQ(recorder.pools.back(), firstPool);
    EXPECT_TRUE(isStampedAfter(time, *parameter->ownValue()));
    EXPECT_TRUE(printed().empty());
    EXPECT_TRUE(warnings.texts.empty());
}

TEST_P(WritingContract, TwoEditorsFollowEachOtherWithoutAnEcho) {
    auto const parameter = parameterWith(0);
    auto const first = open(parameter);
    auto const second = open(parameter);
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const count = static_cast<std::size_t>(editorCase().notificationsWithTwoEditors);
    edit(first);
    expectShown(first, *parameter->ownValue());
    expectShown(second, *parameter->ownValue());
    EXPECT_EQ(recorder.values.size(), count);
    edit(second);
    expectShown(first, *parameter->ownValue());
    expectShown(second, *parameter->ownValue());
    EXPECT_EQ(recorder.values.size(), 2 * count);
    EXPECT_TRUE(printed().empty());
}

TEST_P(WritingContract, AnEditReachesItsPoolAlone) {
    auto const parameter = parameterWith(0, Values::PerPool);
    editorCase().change(*parameter->getLocalValue(firstPool, std::string(), true), 1);
    auto const editor = open(parameter);
    pools.use(secondPool);
    Kolt::showPoolValue(editor, parameter, &pools);
    edit(editor);
    auto const written = parameter->getLocalValue(secondPool, std::string(), false);
    ASSERT_TRUE(written);
    EXPECT_NE(written->Text(), editorCase().makeValue(0)->Text());
    EXPECT_GT(written->age(), 0U);
    expectShown(editor, *written);
    EXPECT_EQ(parameter->ownValue()->Text(), editorCase().makeValue(0)->Text());
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_EQ(parameter->getLocalValue(firstPool, std::string(), false)->Text(), editorCase().makeValue(1)->Text());
    EXPECT_TRUE(printed().empty());
}

TEST_P(WritingContract, TheParameterMayDieInsideTheNotificationOfAnEdit) {
    auto parameter = parameterWith(0);
    auto const editor = open(parameter);
    RecordingNotifier recorder;
    recorder.reaction = [&] { parameter.reset(); };
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    edit(editor);
    EXPECT_FALSE(parameter);
    EXPECT_EQ(printed(), std::vector<std::string>{missingOwnerLine});
}

TEST_P(WritingContract, ThePanelMayCloseInsideTheNotificationOfAnEdit) {
    auto const parameter = parameterWith(0);
    auto const editor = open(parameter);
    RecordingNotifier recorder;
    recorder.reaction = [&] {
        parent->hide();
        parent->deleteLater();
    };
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    edit(editor);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(editor.widget);
    EXPECT_TRUE(printed().empty());
}

namespace {

using Cases = std::vector<EditorCase>;

Cases editable(Cases const& cases) {
    Cases chosen;
    std::copy_if(cases.begin(), cases.end(), std::back_inserter(chosen),
                 [](auto const& each) { return bool(each.edit); });
    return chosen;
}

Cases writing(Cases const& cases) {
    Cases chosen = editable(cases);
    chosen.erase(std::remove_if(chosen.begin(), chosen.end(), [](auto const& each) { return !each.writes; }),
                 chosen.end());
    return chosen;
}

std::string caseName(testing::TestParamInfo<EditorCase> const& info) {
    return info.param.name;
}

} // namespace

void PrintTo(EditorCase const& editorCase, std::ostream* stream) {
    *stream << editorCase.name;
}

INSTANTIATE_TEST_SUITE_P(Editors, EditorContract, testing::ValuesIn(editorCases()), caseName);
INSTANTIATE_TEST_SUITE_P(Editors, EditableContract, testing::ValuesIn(editable(editorCases())), caseName);
INSTANTIATE_TEST_SUITE_P(Editors, WritingContract, testing::ValuesIn(writing(editorCases())), caseName);
#ifdef TALO_MORE_PLUGIN_FILE
INSTANTIATE_TEST_SUITE_P(MoreEditors, EditorContract, testing::ValuesIn(moreEditorCases()), caseName);
INSTANTIATE_TEST_SUITE_P(MoreEditors, EditableContract, testing::ValuesIn(editable(moreEditorCases())), caseName);
INSTANTIATE_TEST_SUITE_P(MoreEditors, WritingContract, testing::ValuesIn(writing(moreEditorCases())), caseName);
#endif
