#include "support/FreshHome.hpp"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>
#include <utility>

FreshHome::FreshHome() {
    std::filesystem::path const homes = TALO_TEST_HOMES;
    std::filesystem::create_directories(homes);
    auto name = (homes / "home-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), name);
    }
    path_ = name;

    setenv("HOME", path_.c_str(), 1);
    for (auto const& [variable, folder] : {std::pair{"XDG_CONFIG_HOME", "config"},
                                           {"XDG_DATA_HOME", "data"},
                                           {"XDG_CACHE_HOME", "cache"},
                                           {"XDG_STATE_HOME", "state"},
                                           {"XDG_RUNTIME_DIR", "runtime"}}) {
        std::filesystem::create_directory(path_ / folder);
        setenv(variable, (path_ / folder).c_str(), 1);
    }
    std::filesystem::permissions(path_ / "runtime", std::filesystem::perms::owner_all);
}

FreshHome::~FreshHome() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}
