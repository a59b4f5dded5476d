#pragma once

#include <cstdint>
#include <string>
#include <tessera/Export.hpp>

namespace Kolt {

/// What is known of a plug-in file before it is loaded: nothing of it has run then. A file that changes between this
/// look and its loading is not noticed. Any thread. Prints nothing.
class TALO_EXPORT PluginFile {
public:
    /// The largest plug-in file, in bytes.
    static constexpr std::uintmax_t LargestSize = 256 << 20;

    /// Looks at a file. A relative name is one of the working directory.
    explicit PluginFile(std::string const& file);

    /// The absolute path of the file itself, without links.
    std::string const& path() const { return path_; }
    /// Why the file cannot be loaded: a sentence for people that names the file and what is wrong with it. Empty if
    /// nothing is known against it.
    std::string const& problem() const { return problem_; }

    /// The absolute path of a file, without links as far as it exists. Of one folder for an empty name.
    static std::string canonicalPath(std::string const& file);
    /// What the name of each plug-in's export begins with.
    static std::string exportPrefix();

private:
    std::string problemOf(std::string const& file) const;
    std::string problemOfContent(std::string const& file, std::string const& bytes) const;

    std::string path_;
    std::string problem_;
};

} // namespace Kolt
