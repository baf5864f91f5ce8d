#include "workbench/platform/Interruption.hpp"

#include <atomic>
#include <csignal>
#include <iterator>

#include "workbench/common/errors.hpp"

namespace workbench {

namespace {

using Handler = void (*)(int);

constexpr int Requests[] = {
    SIGINT,
    SIGTERM,
#if defined(SIGHUP)
    SIGHUP,
#endif
};

std::atomic<int> requested = 0;  // the signal
static_assert(std::atomic<int>::is_always_lock_free);

Handler before[std::size(Requests)];

extern "C" void noteRequest(int signal) {
    requested = signal;
    std::signal(signal, SIG_DFL);
}

}  // namespace

Interruption::Interruption() {
    requested = 0;
    for (std::size_t i = 0; i < std::size(Requests); ++i) {
        before[i] = std::signal(Requests[i], noteRequest);
        if (before[i] == SIG_IGN)
            std::signal(Requests[i], SIG_IGN);
    }
#if defined(SIGXFSZ)
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

Interruption::~Interruption() {
    for (std::size_t i = 0; i < std::size(Requests); ++i)
        std::signal(Requests[i], before[i]);
    if (requested != 0)
        std::raise(requested);
}

bool Interruption::isRequested() {
    return requested != 0;
}

void Interruption::answer() {
    requested = 0;
}

void Interruption::check() {
    if (isRequested())
        throw WorkError("the work was interrupted");
}

}  // namespace workbench
