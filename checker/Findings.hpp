#pragma once

#include <string>
#include <vector>

namespace Checker {

/// What a check found, in sentences. Faults make it fail; notes do not. User-interface thread.
class Findings {
public:
    Findings() = default;
    /// Writes each finding to this open file at once as well, so that it outlives a crash: a line "F text" or "N text".
    /// The descriptor is not owned.
    explicit Findings(int descriptor) : descriptor_(descriptor) {}

    /// Puts this before each finding that follows; empty for nothing.
    void setSubject(std::string subject) { subject_ = std::move(subject); }
    /// Something that a plug-in must not do.
    void fault(std::string const& sentence);
    /// Something that its author may want to know.
    void note(std::string const& sentence);
    /// A fault unless the condition holds. Returns the condition.
    bool expect(bool holds, std::string const& sentence);
    /// A fault unless both texts are equal; the sentence is "... is X instead of Y". Returns whether they are.
    bool expectEqual(std::string const& is, std::string const& expected, std::string const& what);
    /// The same for numbers.
    bool expectEqual(std::size_t is, std::size_t expected, std::string const& what);

    /// The faults, in order.
    std::vector<std::string> const& faults() const { return faults_; }
    /// The notes, in order.
    std::vector<std::string> const& notes() const { return notes_; }

private:
    void write(char mark, std::string const& text) const;

    int const descriptor_ = -1;
    std::string subject_;
    std::vector<std::string> faults_;
    std::vector<std::string> notes_;
};

} // namespace Checker
