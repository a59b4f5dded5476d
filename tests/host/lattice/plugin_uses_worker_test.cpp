// Values of a plug-in's type may be made and destroyed on any thread while the user interface asks what is in use.

#include "host/lattice/PluginLoaderTest.hpp"

#include <atomic>
#include <plugins_bad/own_value.hpp>
#include <thread>

namespace {

using PluginUseOnThreads = PluginLoaderTest;

TEST_F(PluginUseOnThreads, ValuesComeAndGoWhileTheLoaderLooks) {
    auto const file = badPlugin("own_value");
    ASSERT_TRUE(loader_.load(file).ok);
    {
        auto const workshop = interfaceOfCreator<OwnValueWorkshop>();
        auto const kept = workshop->makeOwnType();
        std::atomic<bool> isDone{false};
        std::vector<std::thread> workers;
        for (int worker = 0; worker < 2; ++worker) {
            workers.emplace_back([&] {
                while (!isDone) {
                    auto const value = workshop->makeOwnType();
                    auto const copy = value->clone();
                    EXPECT_TRUE(copy->equals(*value));
                }
            });
        }
        for (int round = 0; round < 200; ++round)
            EXPECT_THAT(loader_.unload(file).message, testing::HasSubstr("of type Kolt::VValue<OwnValue::Vector>"));
        isDone = true;
        for (auto& worker : workers)
            worker.join();
    }
    auto const unloaded = loader_.unload(file);
    EXPECT_TRUE(unloaded.ok) << unloaded.message;
    EXPECT_FALSE(isMapped(file));
}

} // namespace
