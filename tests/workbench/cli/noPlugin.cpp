/// A library that is no plug-in: it lacks the export.
extern "C" int notTheExport() {
    return 1;
}
