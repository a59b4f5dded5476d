#include <lattice/PluginLibrary.hpp>

#include <algorithm>
#include <dlfcn.h>
#include <limits>
#include <link.h>
#include <unwind.h>

namespace Kolt {

namespace {

std::string loaderReason() {
    char const* const reason = dlerror();
    return reason ? reason : "the system gives no reason";
}

struct RangeSearch {
    ElfW(Addr) base = 0;
    Tessera::AddressRange range;
};

int lookAtLibrary(dl_phdr_info* library, std::size_t, void* data) {
    auto& search = *static_cast<RangeSearch*>(data);
    if (library->dlpi_addr != search.base)
        return 0;
    search.range.begin = std::numeric_limits<std::uintptr_t>::max();
    for (int index = 0; index < library->dlpi_phnum; ++index) {
        auto const& segment = library->dlpi_phdr[index];
        if (segment.p_type != PT_LOAD)
            continue;
        search.range.begin = std::min<std::uintptr_t>(search.range.begin, search.base + segment.p_vaddr);
        search.range.end = std::max<std::uintptr_t>(search.range.end, search.base + segment.p_vaddr + segment.p_memsz);
    }
    return 1;
}

Tessera::AddressRange rangeOf(void* handle) {
    link_map const* map = nullptr;
    if (dlinfo(handle, RTLD_DI_LINKMAP, &map) != 0)
        return {};
    RangeSearch search{map->l_addr, {}};
    dl_iterate_phdr(lookAtLibrary, &search);
    return search.range;
}

struct StackSearch {
    Tessera::AddressRange const& range;
    bool found;
};

_Unwind_Reason_Code lookAtFrame(_Unwind_Context* context, void* data) {
    auto& search = *static_cast<StackSearch*>(data);
    std::uintptr_t const place = _Unwind_GetIP(context);
    search.found = place >= search.range.begin && place < search.range.end;
    return search.found ? _URC_END_OF_STACK : _URC_NO_REASON;
}

} // namespace

PluginLibrary::PluginLibrary(std::string path, void* handle)
    : path_(std::move(path)), handle_(handle), range_(rangeOf(handle)) {}

std::unique_ptr<PluginLibrary> PluginLibrary::open(std::string const& path, std::string& problem) {
    void* const handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        problem = loaderReason();
        return nullptr;
    }
    return std::unique_ptr<PluginLibrary>(new PluginLibrary(path, handle));
}

void* PluginLibrary::symbol(std::string const& name) const {
    return dlsym(handle_, name.c_str());
}

bool PluginLibrary::isOnStack() const {
    StackSearch search{range_, false};
    _Unwind_Backtrace(lookAtFrame, &search);
    return search.found;
}

void PluginLibrary::leave() {
    dlclose(handle_);
}

PluginLibrary::Closed PluginLibrary::close(std::string& problem) {
    if (dlclose(handle_) != 0) {
        problem = loaderReason();
        return Closed::Failed;
    }
    // A handle of one's own keeps what remains from being unloaded while it is still listed.
    if (void* const again = dlopen(path_.c_str(), RTLD_LAZY | RTLD_NOLOAD)) {
        handle_ = again;
        return Closed::Remains;
    }
    return Closed::Unloaded;
}

} // namespace Kolt
