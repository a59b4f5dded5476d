#include <checker/Findings.hpp>

#include <algorithm>
#include <unistd.h>

namespace Checker {

namespace {

/// A text between quotation marks, shortened where it is long.
std::string quoted(std::string const& text) {
    constexpr std::size_t longest = 80;
    return '"' + (text.size() > longest ? text.substr(0, longest) + "..." : text) + '"';
}

} // namespace

void Findings::write(char mark, std::string const& text) const {
    if (descriptor_ < 0)
        return;
    auto line = mark + (' ' + text);
    std::replace(line.begin(), line.end(), '\n', ' ');
    line += '\n';
    // A file that cannot be written has no end mark, which its reader tells.
    [[maybe_unused]] auto const written = ::write(descriptor_, line.data(), line.size());
}

void Findings::fault(std::string const& sentence) {
    faults_.push_back(subject_ + sentence);
    write('F', faults_.back());
}

void Findings::note(std::string const& sentence) {
    notes_.push_back(subject_ + sentence);
    write('N', notes_.back());
}

bool Findings::expect(bool holds, std::string const& sentence) {
    if (!holds)
        fault(sentence);
    return holds;
}

bool Findings::expectEqual(std::string const& is, std::string const& expected, std::string const& what) {
    return expect(is == expected, what + " is " + quoted(is) + " instead of " + quoted(expected));
}

bool Findings::expectEqual(std::size_t is, std::size_t expected, std::string const& what) {
    return expect(is == expected, what + " is " + std::to_string(is) + " instead of " + std::to_string(expected));
}

} // namespace Checker
