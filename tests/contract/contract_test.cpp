#include "EditorCases.hpp"
#include "support/TestHost.hpp"

#include <checker/EditorContract.hpp>

namespace {

/// A check of the contract, for one editor.
struct Duty {
    EditorCase editor;
    Checker::EditorContract::Check check;
};

class Contract : public PluginTest, public testing::WithParamInterface<Duty> {
protected:
    void SetUp() override {
        PluginTest::SetUp();
#ifdef TALO_MORE_PLUGIN_FILE
        auto const outcome = loader.load(TALO_MORE_PLUGIN_FILE);
        ASSERT_TRUE(outcome.ok) << outcome.message;
#endif
    }

    void TearDown() override {
        PluginTest::TearDown();
#ifdef TALO_MORE_PLUGIN_FILE
        auto const outcome = loader.unload(TALO_MORE_PLUGIN_FILE);
        EXPECT_TRUE(outcome.ok) << outcome.message;
#endif
    }
};

} // namespace

TEST_P(Contract, IsKept) {
    Checker::Findings findings;
    {
        Checker::EditorContract contract(
            GetParam().editor, [this] { return takeOutput(); }, findings);
        (contract.*GetParam().check.run)();
    }
    EXPECT_THAT(findings.faults(), testing::IsEmpty());
}

namespace {

std::vector<Duty> duties(std::vector<EditorCase> const& editors) {
    std::vector<Duty> all;
    for (auto const& editor : editors)
        for (auto const& check : Checker::EditorContract::checks())
            if (Checker::EditorContract::concerns(check, editor))
                all.push_back({editor, check});
    return all;
}

std::string dutyName(testing::TestParamInfo<Duty> const& info) {
    return info.param.editor.name + '_' + info.param.check.name;
}

// Names the editor in the output of a failure.
void PrintTo(Duty const& duty, std::ostream* stream) {
    *stream << duty.editor.name << ' ' << duty.check.name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Editors, Contract, testing::ValuesIn(duties(editorCases())), dutyName);
#ifdef TALO_MORE_PLUGIN_FILE
INSTANTIATE_TEST_SUITE_P(MoreEditors, Contract, testing::ValuesIn(duties(moreEditorCases())), dutyName);
#endif
