#include <tessera/Typename.hpp>

#include <cstdlib>
#include <cxxabi.h>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <tessera/NoDestructor.hpp>

namespace Tessera {

namespace {

void replaceAll(std::string& text, std::string const& what, std::string const& by) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
}

/// "StrongPtr<X, X>" is written "StrongPtr<X>" in the code.
void dropRepeatedBases(std::string& text) {
    for (auto at = text.find("Ptr<"); at != std::string::npos; at = text.find("Ptr<", at + 1)) {
        auto const comma = text.find(", ", at);
        if (comma == std::string::npos)
            return;
        auto const object = text.substr(at + 4, comma - at - 4);
        if (text.compare(comma + 2, object.size() + 1, object + ">") == 0)
            text.erase(comma, object.size() + 2);
    }
}

std::string readableName(char const* mangled) {
    int status = 0;
    std::unique_ptr<char, void (*)(void*)> const demangled(abi::__cxa_demangle(mangled, nullptr, nullptr, &status),
                                                           std::free);
    std::string name = status == 0 ? demangled.get() : mangled;
    replaceAll(name, " >", ">");
    replaceAll(name, "std::__cxx11::", "std::");
    replaceAll(name, "std::basic_string<char, std::char_traits<char>, std::allocator<char>>", "std::string");
    // The size of an array.
    for (char digit = '0'; digit <= '9'; ++digit)
        replaceAll(name, std::string(1, digit) + "ul>", std::string(1, digit) + ">");
    dropRepeatedBases(name);
    return name;
}

} // namespace

std::string Typename(std::type_info const& type) {
    // Immortal, as creators that are destroyed at the end of the process still ask.
    static NoDestructor<std::mutex> mutex;
    static NoDestructor<std::map<std::string, std::string, std::less<>>> names;
    std::lock_guard const lock(*mutex);
    auto known = names->find(type.name());
    if (known == names->end())
        known = names->emplace(type.name(), readableName(type.name())).first;
    return known->second;
}

} // namespace Tessera
