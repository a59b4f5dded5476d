#include "support/PluginFile.hpp"
#include "support/TaloTest.hpp"

#include <dlfcn.h>
#include <lattice/Initialization.hpp>

namespace {

/// A host that records the keys and always gives the same answer.
struct StubbornHost : Kolt::VInitialization {
    explicit StubbornHost(bool answer) : answer_(answer) {}
    bool IsCompatible(char const* key) const override {
        keys.emplace_back(key);
        return answer_;
    }
    mutable std::vector<std::string> keys;
    bool const answer_;
};

class Export : public TaloTest {
protected:
    using Function = bool (*)(Kolt::VInitialization const*);

    void SetUp() override {
        handle_ = dlopen(pluginFile, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(handle_, nullptr) << dlerror();
        function_ = reinterpret_cast<Function>(dlsym(handle_, "TALO_API_2023_MAR_29__qtalo_inputs"));
        ASSERT_NE(function_, nullptr) << dlerror();
    }
    void TearDown() override {
        if (handle_)
            dlclose(handle_);
    }
    void* handle_ = nullptr;
    Function function_ = nullptr;
};

TEST_F(Export, AsksTheHostWithTheKeyOnceAndReturnsItsAnswer) {
    for (bool const answer : {true, false, true}) {
        StubbornHost const host(answer);
        EXPECT_EQ(function_(&host), answer);
        EXPECT_THAT(host.keys, testing::ElementsAre("TALO_API_VERSION"));
    }
}

TEST_F(Export, SuitsThisHost) {
    Kolt::VInitialization const host;
    EXPECT_TRUE(function_(&host));
}

} // namespace
