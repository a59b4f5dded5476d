#pragma once

#include <filesystem>

/// An empty home folder in the build folder that the environment points to (HOME and the XDG folders) while this object
/// lives; it goes with the object. Made before any thread and before the application object.
class FreshHome {
public:
    FreshHome();
    ~FreshHome();
    FreshHome(FreshHome const&) = delete;
    FreshHome& operator=(FreshHome const&) = delete;

private:
    std::filesystem::path path_;
};
