/// A library that is no plug-in: it lacks the export, and has another.
extern "C" int notTheExport() {
    return 1;
}
