#include "support/TaloTest.hpp"

#include <lattice/HostObserver.hpp>
#include <limits>
#include <plugin/Plugin.hpp>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Observer : Kolt::HostObserver {
    Observer() { setObserver(this); }
    ~Observer() override { setObserver(nullptr); }
    void pluginCalled(Kolt::VInitialization::InitPluginReason reason, std::string const& plugin,
                      std::string const& key) override {
        calls.push_back(std::to_string(reason) + " " + plugin + " " + key);
    }
    std::vector<std::string> calls;
};

class LoadCallback : public TaloTest {
protected:
    std::vector<std::string> callsFor(unsigned long reason) {
        observer_.calls.clear();
        EXPECT_EQ(Kolt::loadCallback("qtalo_inputs", this, reason, this), 1) << reason;
        return observer_.calls;
    }
    Observer observer_;
};

TEST_F(LoadCallback, ExchangesProcessAttachAndDetach) {
    EXPECT_THAT(callsFor(0), ElementsAre("1 qtalo_inputs TALO_API_VERSION"));
    EXPECT_THAT(callsFor(1), ElementsAre("0 qtalo_inputs TALO_API_VERSION"));
}

TEST_F(LoadCallback, PassesTheThreadReasonsOn) {
    EXPECT_THAT(callsFor(2), ElementsAre("2 qtalo_inputs TALO_API_VERSION"));
    EXPECT_THAT(callsFor(3), ElementsAre("3 qtalo_inputs TALO_API_VERSION"));
}

TEST_F(LoadCallback, CallsNothingForAnotherReasonAndStillSucceeds) {
    EXPECT_THAT(callsFor(4), IsEmpty());
    EXPECT_THAT(callsFor(5), IsEmpty());
    EXPECT_THAT(callsFor(std::numeric_limits<unsigned long>::max()), IsEmpty());
}

TEST_F(LoadCallback, NeedsNeitherHandleNorReservedPointer) {
    EXPECT_EQ(Kolt::loadCallback("qtalo_inputs", nullptr, 1, nullptr), 1);
    EXPECT_THAT(observer_.calls, ElementsAre("0 qtalo_inputs TALO_API_VERSION"));
}

TEST_F(LoadCallback, ReportsAttachAndDetachForTheLifeOfALoadReport) {
    {
        Kolt::LoadReport const report("other_inputs");
        EXPECT_THAT(observer_.calls, ElementsAre("0 other_inputs TALO_API_VERSION"));
    }
    EXPECT_THAT(observer_.calls, ElementsAre("0 other_inputs TALO_API_VERSION", "1 other_inputs TALO_API_VERSION"));
}

} // namespace
