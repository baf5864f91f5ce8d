#undef _FORTIFY_SOURCE  // its own `open` would stand in the way of this one

#include "workbench/platform/Watch.hpp"

#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr unsigned MostNames = 8;
constexpr unsigned MostLetters = 200;

/// What is written while a thread asks: nothing that would ask for more.
struct Notes {
    bool watching;
    unsigned locks;
    unsigned names;
    char touched[MostNames][MostLetters];
};
thread_local Notes notes{};

void noteLock() {
    if (notes.watching)
        ++notes.locks;
}

void noteTouch(char const* how, char const* what) {
    if (!notes.watching || notes.names == MostNames)
        return;
    std::snprintf(notes.touched[notes.names++], MostLetters, "%s '%s'", how,
                  what != nullptr ? what : "");
}

/// The system's own function, which stands behind the one of the same name here.
template <class Function>
Function* next(Function*, char const* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// The mode of a file that may be made, where it is given.
mode_t modeBehind(int flags, std::va_list& rest) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(rest, int)) : 0;
}

}  // namespace

#define PRISM_NEXT(name) static auto* const theNext = next(&::name, #name)
#define PRISM_VISIBLE [[gnu::visibility("default")]]

extern "C" {

PRISM_VISIBLE int pthread_mutex_lock(pthread_mutex_t* mutex) noexcept {
    PRISM_NEXT(pthread_mutex_lock);
    noteLock();
    return theNext(mutex);
}
PRISM_VISIBLE int pthread_mutex_trylock(pthread_mutex_t* mutex) noexcept {
    PRISM_NEXT(pthread_mutex_trylock);
    noteLock();
    return theNext(mutex);
}
PRISM_VISIBLE int pthread_rwlock_rdlock(pthread_rwlock_t* lock) noexcept {
    PRISM_NEXT(pthread_rwlock_rdlock);
    noteLock();
    return theNext(lock);
}
PRISM_VISIBLE int pthread_rwlock_wrlock(pthread_rwlock_t* lock) noexcept {
    PRISM_NEXT(pthread_rwlock_wrlock);
    noteLock();
    return theNext(lock);
}

// The C library's own names of these parameters are reserved.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
PRISM_VISIBLE int open(char const* file, int flags, ...) {
    PRISM_NEXT(open);
    noteTouch("opened the file", file);
    std::va_list rest;
    va_start(rest, flags);
    mode_t const mode = modeBehind(flags, rest);
    va_end(rest);
    return theNext(file, flags, mode);
}
PRISM_VISIBLE int open64(char const* file, int flags, ...) {
    PRISM_NEXT(open64);
    noteTouch("opened the file", file);
    std::va_list rest;
    va_start(rest, flags);
    mode_t const mode = modeBehind(flags, rest);
    va_end(rest);
    return theNext(file, flags, mode);
}
PRISM_VISIBLE int openat(int folder, char const* file, int flags, ...) {
    PRISM_NEXT(openat);
    noteTouch("opened the file", file);
    std::va_list rest;
    va_start(rest, flags);
    mode_t const mode = modeBehind(flags, rest);
    va_end(rest);
    return theNext(folder, file, flags, mode);
}
PRISM_VISIBLE std::FILE* fopen(char const* file, char const* mode) {
    PRISM_NEXT(fopen);
    noteTouch("opened the file", file);
    return theNext(file, mode);
}
PRISM_VISIBLE std::FILE* fopen64(char const* file, char const* mode) {
    PRISM_NEXT(fopen64);
    noteTouch("opened the file", file);
    return theNext(file, mode);
}

PRISM_VISIBLE char* getenv(char const* name) noexcept {
    PRISM_NEXT(getenv);
    noteTouch("read the environment's", name);
    return theNext(name);
}
PRISM_VISIBLE char* secure_getenv(char const* name) noexcept {
    PRISM_NEXT(secure_getenv);
    noteTouch("read the environment's", name);
    return theNext(name);
}
PRISM_VISIBLE int setenv(char const* name, char const* value, int replace) noexcept {
    PRISM_NEXT(setenv);
    noteTouch("wrote the environment's", name);
    return theNext(name, value, replace);
}
PRISM_VISIBLE int unsetenv(char const* name) noexcept {
    PRISM_NEXT(unsetenv);
    noteTouch("removed the environment's", name);
    return theNext(name);
}
PRISM_VISIBLE int putenv(char* text) noexcept {
    PRISM_NEXT(putenv);
    noteTouch("wrote the environment's", text);
    return theNext(text);
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
}

namespace workbench {

Watch::Watch() {
    notes = {};
    notes.watching = true;
}

Watch::~Watch() {
    notes.watching = false;
}

bool Watch::sees() {
    return true;
}

unsigned Watch::locks() const {
    return notes.locks;
}

std::vector<std::string> Watch::touched() const {
    return {notes.touched, notes.touched + notes.names};
}

}  // namespace workbench
