#include <lattice/PluginRemains.hpp>

#include <lattice/ActionNotifier.hpp>
#include <lattice/HostObserver.hpp>
#include <lattice/InputCreator.hpp>
#include <lattice/NotificationThread.hpp>
#include <lattice/ValueCreator.hpp>
#include <lattice/ValueFormat.hpp>
#include <map>
#include <tessera/LivingObjects.hpp>
#include <tessera/SpeakPtr.hpp>

namespace Kolt {

PluginRemains::PluginRemains(PluginLibrary const& library) : range_(library.range()) {
    for (auto* const object : VManagedObject::living()) {
        if (library.defines(typeid(*object)))
            add(dynamic_cast<VInputCreatorBase*>(object) ? "creator" : "managed object", object);
    }
    for (auto const& reference : VValueCreator::living()) {
        auto* const creator = reference.get();
        if (library.defines(typeid(*creator)))
            add("value creator", creator);
    }
    for (auto const& reference : VActionNotifier::living()) {
        auto* const receiver = reference.get();
        if (library.defines(typeid(*receiver)))
            add("warning receiver", receiver);
    }
    for (auto* const notifier : ValueNotifier::living()) {
        if (range_.contains(notifier))
            add("notifier", notifier);
    }
    for (auto const* const format : VValueFormat::all()) {
        // One of a class of the host lies in the plug-in or has functions of it.
        if (library.defines(typeid(*format)) || range_.contains(format))
            installed_.push_back({"format", [format] { return VValueFormat::unregister(format); }});
    }
    noteInstalled(library);
}

void PluginRemains::add(std::string const& kind, Tessera::ReferenceCounted* object) {
    registered_.push_back({kind, Tessera::WeakPtr<Tessera::ReferenceCounted>(object), object->referenceControl()});
}

void PluginRemains::noteInstalled(PluginLibrary const& library) {
    auto* const observer = &HostObserver::theObserver();
    if (library.defines(typeid(*observer))) {
        installed_.push_back({"observer", [observer] {
                                  bool const remains = &HostObserver::theObserver() == observer;
                                  if (remains)
                                      HostObserver::setObserver(nullptr);
                                  return remains;
                              }});
    }
    auto* const speaker = &Tessera::SpeakPtr::theSpeaker();
    if (library.defines(typeid(*speaker))) {
        installed_.push_back({"speaker", [speaker] {
                                  bool const remains = &Tessera::SpeakPtr::theSpeaker() == speaker;
                                  if (remains)
                                      Tessera::SpeakPtr::setSpeaker(nullptr);
                                  return remains;
                              }});
    }
    auto* const thread = NotificationThread::installed();
    if (thread && library.defines(typeid(*thread))) {
        installed_.push_back({"notification thread", [thread] {
                                  bool const remains = NotificationThread::installed() == thread;
                                  if (remains)
                                      NotificationThread::install(nullptr);
                                  return remains;
                              }});
    }
}

std::string PluginRemains::cleanUp() {
    ValueNotifier::abandon(range_);
    std::map<std::string, int> counts;
    for (auto const& registered : registered_) {
        if (!registered.object.alive())
            continue;
        // The registries leave out what is abandoned.
        registered.control->abandon();
        ++counts[registered.kind];
    }
    for (auto const& installed : installed_) {
        if (installed.remove())
            ++counts[installed.kind];
    }
    if (int const others = Tessera::LivingObjects::abandon(range_))
        counts["object"] += others;
    std::string text;
    for (auto const& [kind, count] : counts)
        text += (text.empty() ? "" : ", ") + std::to_string(count) + " " + kind + (count == 1 ? "" : "s");
    return text;
}

} // namespace Kolt
