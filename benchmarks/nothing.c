/* The floor of loading a library: one symbol, no work. */
__attribute__((visibility("default"))) int question(void* host) {
    return host != 0;
}
