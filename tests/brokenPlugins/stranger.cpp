/// The library that no host has.
#if defined(_WIN32)
__declspec(dllexport)
#else
[[gnu::visibility("default")]]
#endif
    int strange() {
    return 7;
}
