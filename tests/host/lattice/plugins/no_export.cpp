// A library that can be loaded but is no plug-in.
static int volatile loads = 0;

[[gnu::constructor]] static void load() {
    loads = loads + 1;
}
