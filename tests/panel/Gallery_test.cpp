#include "contract/EditorCases.hpp"
#include "support/PluginFile.hpp"
#include "support/TaloTest.hpp"

#include <algorithm>
#include <panel/gallery/Gallery.hpp>
#include <panel/window/Plugins.hpp>
#include <QDial>

using Panel::GalleryState;
using testing::Contains;
using testing::HasSubstr;

namespace {

constexpr char missingOwnerLine[] = "**POSSIBLE INTERNAL FAULT**: VInputBase without owner? That's not good.";

class GalleryTest : public TaloTest {
protected:
    void SetUp() override {
        TaloTest::SetUp();
        QString error;
        ASSERT_TRUE(plugins.load(QString::fromUtf8(pluginFile), &error)) << qPrintable(error);
    }
    void TearDown() override {
        gallery.reset();
        // Lists print a trace whenever they show a value.
        printed();
        QString error;
        EXPECT_TRUE(plugins.unload(&error)) << qPrintable(error);
        TaloTest::TearDown();
    }

    Panel::GalleryPage* open(GalleryState state) {
        gallery = std::make_unique<Panel::Gallery>();
        auto* const page = gallery->showState(state);
        gallery->show();
        gallery->activateWindow();
        EXPECT_TRUE(waitUntil([&] { return gallery->isActiveWindow(); }));
        return page;
    }
    /// What was printed, without the trace of the lists.
    std::vector<std::string> printed() {
        auto lines = takeOutput();
        lines.erase(std::remove(lines.begin(), lines.end(), "calling getSeletion from valueChanged"), lines.end());
        return lines;
    }
    static Panel::GalleryRow* findRow(Panel::GalleryPage const* page, EditorCase const& editorCase) {
        auto const& names = editorCase.preferences;
        bool const editable = std::find(names.begin(), names.end(), "editable") != names.end();
        auto const type = editorCase.declaredType.empty() ? Tessera::Typename(editorCase.makeValue(0)->valueType())
                                                          : editorCase.declaredType;
        auto const found = std::find_if(page->rows().begin(), page->rows().end(), [&](auto const* row) {
            return row->creatorName() == editorCase.creator && row->valueType() == type &&
                   row->creator().strong()->preferences()->contains("editable") == editable;
        });
        if (found == page->rows().end()) {
            ADD_FAILURE() << "no row for " << editorCase.name;
            return nullptr;
        }
        return *found;
    }
    /// The value that the row shows.
    static Kolt::ValuePtr valueOf(Panel::GalleryPage* page, Panel::GalleryRow const* row) {
        auto const parameter = row->parameter();
        return parameter->effectiveValue(page->pools().pool());
    }
    static void edit(Panel::GalleryRow const* row, EditorCase const& editorCase, std::size_t index) {
        // Lay out a page that was just shown.
        QCoreApplication::processEvents();
        // A wheel over an editor without the focus scrolls the page.
        if (auto* const dial = row->editor(index)->findChild<QDial*>())
            dial->setFocus();
        editorCase.edit(*row->editor(index));
        QCoreApplication::processEvents();
    }

    Panel::Plugins plugins;
    std::unique_ptr<Panel::Gallery> gallery;
};

} // namespace

TEST_F(GalleryTest, EveryCreatorHasTwoEditorsOfItsOwnInEveryState) {
    for (auto const state : Panel::galleryStates()) {
        auto const* const page = open(state);
        EXPECT_EQ(page->rows().size(), editorCases().size());
        for (auto const& editorCase : editorCases()) {
            SCOPED_TRACE(editorCase.name + " in " + Panel::galleryStateTitle(state).toStdString());
            auto const* const row = findRow(page, editorCase);
            ASSERT_NE(row, nullptr);
            EXPECT_EQ(row->note(), QString());
            for (std::size_t const index : {0U, 1U}) {
                ASSERT_NE(row->editor(index), nullptr);
                EXPECT_TRUE(row->editor(index)->isVisibleTo(gallery.get()));
                EXPECT_EQ(row->choice(index).creator.strong(), row->creator().strong());
            }
            EXPECT_NE(row->editor(0), row->editor(1));
            EXPECT_EQ(row->parameter() != nullptr, state != GalleryState::DeadParameter);
        }
    }
}

TEST_F(GalleryTest, AnEditInOneEditorAppearsInTheOtherAndBesideThem) {
    for (auto const state : {GalleryState::Normal, GalleryState::PerPool}) {
        auto* const page = open(state);
        for (auto const& editorCase : editorCases()) {
            if (!editorCase.edit || !editorCase.writes)
                continue;
            SCOPED_TRACE(editorCase.name + " in " + Panel::galleryStateTitle(state).toStdString());
            auto const* const row = findRow(page, editorCase);
            ASSERT_NE(row, nullptr);
            for (std::size_t const index : {0U, 1U}) {
                auto const text = row->rawValue()->text().toStdString();
                auto const stamp = row->rawValue()->stamp();
                auto const count = row->counter()->count();
                edit(row, editorCase, index);
                // Choosing a file again does not change the value.
                if (index == 0) {
                    EXPECT_NE(row->rawValue()->text().toStdString(), text);
                }
                EXPECT_NE(row->rawValue()->stamp(), stamp);
                EXPECT_EQ(row->rawValue()->text().toStdString(), valueOf(page, row)->Text());
                EXPECT_GT(row->counter()->count(), count);
                EXPECT_EQ(row->counter()->text(), QString::number(row->counter()->count()));
                auto const other = editorCase.shown(*row->editor(1 - index));
                if (editorCase.showsValue) {
                    EXPECT_EQ(other, editorCase.shown(*row->editor(index)));
                }
            }
        }
        EXPECT_EQ(printed(), std::vector<std::string>());
    }
}

TEST_F(GalleryTest, TheEditorsShowTheValueOfTheChosenPool) {
    auto* const page = open(GalleryState::PerPool);
    ASSERT_NE(page->poolSelector(), nullptr);
    std::vector<std::string> first;
    for (auto const* const row : page->rows())
        first.push_back(row->rawValue()->text().toStdString());
    page->poolSelector()->setCurrentText(QStringLiteral("final"));
    for (std::size_t index = 0; index < page->rows().size(); ++index) {
        EXPECT_NE(page->rows()[index]->rawValue()->text().toStdString(), first[index]);
        EXPECT_TRUE(page->rows()[index]->rawValue()->stamp().contains(QStringLiteral("final")));
    }
    for (auto const& editorCase : editorCases()) {
        if (!editorCase.showsValue)
            continue;
        SCOPED_TRACE(editorCase.name);
        auto const* const row = findRow(page, editorCase);
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(editorCase.shown(*row->editor(0)), editorCase.shown(*row->editor(1)));
    }
    EXPECT_TRUE(findRow(page, editorCases().front())->rawValue()->text() == QStringLiteral("true"));
    EXPECT_EQ(editorCases().front().shown(*findRow(page, editorCases().front())->editor(0)), "true");
}

TEST_F(GalleryTest, AnEditOfADeadParameterSaysSo) {
    auto* const page = open(GalleryState::DeadParameter);
    for (auto const& editorCase : editorCases()) {
        SCOPED_TRACE(editorCase.name);
        auto const* const row = findRow(page, editorCase);
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->rawValue()->stamp(), QStringLiteral("removed"));
        if (!editorCase.edit)
            continue;
        edit(row, editorCase, 1);
        EXPECT_EQ(printed(), std::vector<std::string>{missingOwnerLine});
        EXPECT_EQ(row->counter()->count(), 0);
    }
}

TEST_F(GalleryTest, WithoutAPoolAnEditStoresNothingAndNotifiesNobody) {
    auto* const page = open(GalleryState::NoPool);
    for (auto const& editorCase : editorCases()) {
        if (!editorCase.edit)
            continue;
        SCOPED_TRACE(editorCase.name);
        auto const* const row = findRow(page, editorCase);
        ASSERT_NE(row, nullptr);
        auto const text = row->rawValue()->text();
        auto const count = row->counter()->count();
        edit(row, editorCase, 0);
        EXPECT_EQ(row->rawValue()->text(), text);
        EXPECT_EQ(row->counter()->count(), count);
        EXPECT_EQ(row->parameter()->ownValue()->age(), 0U);
    }
    EXPECT_EQ(printed(), std::vector<std::string>());
}

TEST_F(GalleryTest, AValueOfAnotherTypeIsLeftAlone) {
    auto* const page = open(GalleryState::WrongType);
    for (auto const& editorCase : editorCases()) {
        if (!editorCase.edit)
            continue;
        SCOPED_TRACE(editorCase.name);
        auto const* const row = findRow(page, editorCase);
        ASSERT_NE(row, nullptr);
        EXPECT_STRNE(row->parameter()->ownValue()->valueType().name(), editorCase.makeValue(0)->valueType().name());
        auto const text = row->parameter()->ownValue()->Text();
        EXPECT_FALSE(text.empty());
        edit(row, editorCase, 0);
        EXPECT_EQ(row->parameter()->ownValue()->Text(), text);
        EXPECT_EQ(row->parameter()->ownValue()->age(), 0U);
    }
    EXPECT_EQ(printed(), std::vector<std::string>());
    EXPECT_THAT(gallery->messages()->texts(Panel::MessageList::Source::Warning).join(QLatin1Char(' ')).toStdString(),
                HasSubstr("QInteger could not initialize value."));
}

TEST_F(GalleryTest, ReportsActionsAndPrintedLines) {
    auto const* const page = open(GalleryState::Normal);
    gallery->tapStandardOutput();
    auto const action = std::find_if(editorCases().begin(), editorCases().end(),
                                     [](auto const& editorCase) { return editorCase.name == "action"; });
    edit(findRow(page, *action), *action, 1);
    EXPECT_TRUE(gallery->messages()
                    ->texts(Panel::MessageList::Source::Panel)
                    .contains(QStringLiteral("Action Run was fired.")));

    auto const* const dead = gallery->showState(GalleryState::DeadParameter);
    edit(findRow(dead, editorCases().front()), editorCases().front(), 0);
    EXPECT_TRUE(waitUntil([&] {
        return gallery->messages()->texts(Panel::MessageList::Source::Output).contains(QLatin1String(missingOwnerLine));
    }));
    EXPECT_THAT(printed(), Contains(missingOwnerLine));
}

TEST_F(GalleryTest, ShowsCreatorsOfAnyPlugin) {
    struct Unknown {};
    class LabelCreator : public Kolt::QInputCreator {
    public:
        std::pair<QPointer<QWidget>, Kolt::InputRef> create(Kolt::ParameterRef const&, QWidget* parent,
                                                            Kolt::ValuePoolSource*) override {
            return {new QLabel(QStringLiteral("outside"), parent), nullptr};
        }
    };
    auto const qt = [] { return Kolt::PreferencesPtr(new Kolt::VCreationPreferences("QT")); };
    // Has a higher priority than the plug-in's creator for the same preferences.
    Kolt::VInputCreator<bool, Kolt::VInputCreatorBase> rival("rival", 1, qt(), "TALO_API_VERSION");
    rival.addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new LabelCreator));
    // No value creator exists for its type.
    Kolt::VInputCreator<Unknown, Kolt::VInputCreatorBase> unknown("unknown", 0, qt(), "TALO_API_VERSION");
    unknown.addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new LabelCreator));

    auto const* const page = open(GalleryState::Normal);
    auto const rowOf = [&](char const* name) {
        return *std::find_if(page->rows().begin(), page->rows().end(),
                             [&](auto const* row) { return row->creatorName() == name; });
    };
    EXPECT_EQ(page->rows().size(), editorCases().size() + 2);
    EXPECT_EQ(rowOf("rival")->note(), QString());
    EXPECT_EQ(qobject_cast<QLabel*>(rowOf("rival")->editor(1))->text(), QStringLiteral("outside"));
    EXPECT_THAT(rowOf("boolean")->note().toStdString(), HasSubstr("rival"));
    EXPECT_EQ(rowOf("unknown")->editor(0), nullptr);
    EXPECT_FALSE(rowOf("unknown")->note().isEmpty());
}

using GalleryWithoutPlugins = TaloTest;

TEST_F(GalleryWithoutPlugins, IsEmpty) {
    Panel::Gallery gallery;
    EXPECT_TRUE(gallery.showState(GalleryState::PerPool)->rows().empty());
}
