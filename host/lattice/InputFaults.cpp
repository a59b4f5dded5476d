#include <lattice/InputFaults.hpp>

#include <dlfcn.h>
#include <exception>
#include <lattice/ActionNotifier.hpp>
#include <lattice/Input.hpp>

namespace Kolt {

namespace {

InputFaults::Listener listener = nullptr;

} // namespace

void InputFaults::setListener(Listener newListener) {
    listener = newListener;
}

std::string InputFaults::describeCurrent() {
    try {
        throw;
    } catch (std::exception const& exception) {
        return std::string("ended with an exception: ") + exception.what();
    } catch (...) {
        return "ended with an exception: its type is unknown";
    }
}

void InputFaults::notificationEnded(ValueNotifier& notifier) {
    auto* const input = dynamic_cast<VInputBase*>(&notifier);
    if (!input)
        throw;
    auto const parameter = input->owner().strong();
    auto const sentence = "The editor of the parameter \"" + (parameter ? parameter->fullName() : std::string()) +
                          "\", of " + fileDefining(typeid(notifier)) + ", " + describeCurrent();
    VActionNotifier::Warning(sentence);
    if (listener)
        listener(*input, sentence);
}

std::string fileDefining(std::type_info const& type) {
    Dl_info info{};
    if (dladdr(&type, &info) == 0 || !info.dli_fname)
        return {};
    std::string const file = info.dli_fname;
    return file.substr(file.rfind('/') + 1);
}

} // namespace Kolt
