/// Import and export marks of the four host libraries.
///
/// A symbol marked with NUCLEO_API, LATTICE_API, QUARTZ_API or VELLUM_API is
/// defined in the host library of that name; everything else in `host/` is
/// inline and stands in every plug-in that uses it. The build of a host library
/// defines `<library>_EXPORTS`; a plug-in defines none of them.
#pragma once

#if defined(_WIN32)
#define TELM_EXPORT __declspec(dllexport)
#define TELM_IMPORT __declspec(dllimport)
#else
#define TELM_EXPORT __attribute__((visibility("default")))
#define TELM_IMPORT __attribute__((visibility("default")))
#endif

#if defined(nucleo_EXPORTS)
#define NUCLEO_API TELM_EXPORT
#else
#define NUCLEO_API TELM_IMPORT
#endif

#if defined(lattice_EXPORTS)
#define LATTICE_API TELM_EXPORT
#else
#define LATTICE_API TELM_IMPORT
#endif

#if defined(quartz_EXPORTS)
#define QUARTZ_API TELM_EXPORT
#else
#define QUARTZ_API TELM_IMPORT
#endif

#if defined(vellum_EXPORTS)
#define VELLUM_API TELM_EXPORT
#else
#define VELLUM_API TELM_IMPORT
#endif
