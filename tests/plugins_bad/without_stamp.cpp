// Was compiled without any header of the host, so nobody knows for which interface.
extern "C" __attribute__((visibility("default"))) bool TALO_API_2023_MAR_29__without_stamp(void const* host) {
    return host != nullptr;
}
