#pragma once

#include <filesystem>

/// Creates an empty home folder in the build folder and points HOME and the XDG folders to it; the destructor removes
/// it. Create it before any thread and before the application object.
class FreshHome {
public:
    FreshHome();
    ~FreshHome();
    FreshHome(FreshHome const&) = delete;
    FreshHome& operator=(FreshHome const&) = delete;

private:
    std::filesystem::path path_;
};
