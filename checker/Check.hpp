#pragma once

#include <checker/Findings.hpp>
#include <functional>
#include <string>
#include <vector>

namespace Checker {

/// What a check is given.
struct Subject {
    std::string file;  ///< the plug-in, a path
    unsigned seed = 1; ///< what random events are drawn from
    int events = 200;  ///< how many random events each editor gets
};

/// One of the checks. Each is run in a process of its own, in which nothing was loaded before.
struct Check {
    /// Whether what the plug-in prints becomes a note.
    enum class Output { Ignored, Noted };

    int level;                                          ///< 1 to 10
    std::string name;                                   ///< one word, with dots
    std::string meaning;                                ///< what holds for a good plug-in, a sentence
    std::function<void(Subject const&, Findings&)> run; ///< adds what it finds
    Output output = Output::Ignored;                    ///< what is done with printed lines
};

/// The highest level.
constexpr int HighestLevel = 10;

/// All checks, by level.
std::vector<Check> const& allChecks();
/// The check of a name; null for none.
Check const* findCheck(std::string const& name);

// Those of each source.
void addFileChecks(std::vector<Check>& checks);
void addLoadChecks(std::vector<Check>& checks);
void addEditorChecks(std::vector<Check>& checks);
void addContractChecks(std::vector<Check>& checks);
void addResidueChecks(std::vector<Check>& checks);
void addValueChecks(std::vector<Check>& checks);
void addEventChecks(std::vector<Check>& checks);
void addSpeedChecks(std::vector<Check>& checks);

} // namespace Checker
