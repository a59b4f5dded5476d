#pragma once

#include "support/TaloTest.hpp"
#include "support/TestWarnings.hpp"

#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <lattice/InputRegistry.hpp>
#include <lattice/PluginLoader.hpp>
#include <sstream>

/// A loader, a folder of the test's own, and a look at what is in memory. Nothing may be registered when a test ends.
class PluginLoaderTest : public TaloTest {
protected:
    void SetUp() override {
        folder_ = std::filesystem::path(getenv("HOME")) / testing::UnitTest::GetInstance()->current_test_info()->name();
        std::filesystem::create_directories(folder_);
    }
    void TearDown() override { EXPECT_THAT(Kolt::InputRegistry::theRegistry().entries(), testing::IsEmpty()); }

    /// A file in the folder of the plug-ins that do something wrong.
    static std::string badPlugin(std::string const& name) { return TALO_BAD_PLUGINS + name + ".talo"; }

    static bool isMapped(std::string const& file) {
        void* const handle = dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
        if (handle)
            dlclose(handle);
        return handle != nullptr;
    }

    /// The interface T of the first registered creator that has one; null if there is none.
    template <typename T>
    static Tessera::StrongPtr<T, Tessera::InterfaceBase> interfaceOfCreator() {
        for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
            if (auto found = entry.creator.strong()->template getInterface<T>())
                return found;
        }
        return nullptr;
    }

    static std::string contentOf(std::string const& file) {
        std::ostringstream content;
        content << std::ifstream(file, std::ios::binary).rdbuf();
        return content.str();
    }
    /// Writes a file in the test's folder and returns its name.
    std::string write(std::string const& name, std::string const& content) const {
        auto const file = (folder_ / name).string();
        std::ofstream(file, std::ios::binary) << content;
        return file;
    }

    std::filesystem::path folder_;
    RecordedWarnings warnings_;
    Kolt::VInitialization host_;
    Kolt::PluginLoader loader_{host_};
};

/// Lets a test plant a leak: while it exists, a leak checker ignores what this thread allocates.
class PlantedLeak {
public:
    PlantedLeak();
    ~PlantedLeak();
    PlantedLeak(PlantedLeak const&) = delete;
    PlantedLeak& operator=(PlantedLeak const&) = delete;
};
