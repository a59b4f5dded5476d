#pragma once

#include <string>
#include <utility>

namespace Tessera {

/// The base of an object with a name that can be changed. The name is UTF-8, may be empty and need not be unique. One
/// thread at a time.
class MutableName {
public:
    /// Has this name, UTF-8.
    explicit MutableName(std::string name) : name_(std::move(name)) {}

    /// The current name. The reference stays valid until the name is changed or the object is destroyed.
    std::string const& Name() const { return name_; }
    /// Changes the name. Nobody is notified.
    void setName(std::string name) { name_ = std::move(name); }

protected:
    ~MutableName() = default;

private:
    std::string name_;
};

} // namespace Tessera
