// What the list of undo steps says of the memory that they take.

#include "support/TaloTest.hpp"

#include <lattice/UndoHistory.hpp>
#include <parameters/commands/HistoryView.hpp>

namespace {

class HistoryViewTest : public TaloTest {
protected:
    /// Records a change from a text of so many bytes.
    void record(std::size_t bytes) {
        history.record(Kolt::ValueChange(parameter, nullptr, {Kolt::makeValue(std::string(bytes, 'a')), false},
                                         {Kolt::makeValue(std::string("b")), false}));
    }
    QString start() const { return view.item(0)->text(); }

    Kolt::ParameterPtr const parameter{new Kolt::VParameter("p", Kolt::makeValue(std::string("b")))};
    Kolt::UndoHistory history;
    Talo::HistoryView view{history};
};

} // namespace

TEST_F(HistoryViewTest, SaysHowMuchMemoryTheStepsTakeOnceThatIsNotable) {
    view.setLocale(QLocale::c());
    view.show();
    EXPECT_EQ(start(), QStringLiteral("Start"));
    record(1000);
    EXPECT_TRUE(waitUntil([&] { return view.count() == 2; }));
    EXPECT_EQ(start(), QStringLiteral("Start"));
    record(std::size_t{3} << 20);
    EXPECT_TRUE(waitUntil([&] { return view.count() == 3; }));
    EXPECT_EQ(start(), QStringLiteral("Start (3 MiB of 64 MiB)"));
    EXPECT_EQ(view.item(0)->toolTip(), QStringLiteral("Before all steps"));
    // More than all may take.
    record(std::size_t{62} << 20);
    EXPECT_TRUE(waitUntil([&] { return view.count() == 2; }));
    EXPECT_EQ(start(), QStringLiteral("Oldest state that is kept (62 MiB of 64 MiB)"));
    EXPECT_NE(view.item(0)->toolTip(), QStringLiteral("Before all steps"));
    history.clear();
    EXPECT_TRUE(waitUntil([&] { return view.count() == 1; }));
    EXPECT_EQ(start(), QStringLiteral("Start"));
}
