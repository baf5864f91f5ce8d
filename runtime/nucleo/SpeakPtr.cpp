/// The host's own reports of pointer misuse: a line each on standard error.
#include "host/pointers/SpeakPtr.hpp"

#include <atomic>
#include <cstdio>

#include "host/pointers/Typename.hpp"

namespace Nucleo {

namespace {

/// Never destroyed, since pointers report to the very end of the process.
SpeakPtr& standardSpeaker() {
    static auto* const speaker = new SpeakPtr;
    return *speaker;
}

std::atomic<SpeakPtr*> speakerInForce{nullptr};

}  // namespace

bool SpeakPtr::Tracing = false;

SpeakPtr::~SpeakPtr() = default;

SpeakPtr* SpeakPtr::theSpeaker() noexcept {
    SpeakPtr* const speaker = speakerInForce;
    return speaker != nullptr ? speaker : &standardSpeaker();
}

SpeakPtr* SpeakPtr::setSpeaker(SpeakPtr* speaker) noexcept {
    return speakerInForce.exchange(speaker);
}

void SpeakPtr::DynPtrInvalid(void const* block, void const* object, int strong, int weak,
                             std::type_info const& type) noexcept {
    std::fprintf(stderr, "pointer: last reference to a dead %s (block %p, object %p, %d, %d)\n",
                 Typename(type).c_str(), block, object, strong, weak);
}

void SpeakPtr::SelfConstruction(std::type_info const& type, void const* pointer,
                                void const* block) noexcept {
    std::fprintf(stderr, "pointer: a pointer to %s is made from itself (%p, block %p)\n",
                 Typename(type).c_str(), pointer, block);
}

void SpeakPtr::DestructionCancelled(int strong, int weak, std::type_info const& type) noexcept {
    std::fprintf(stderr, "pointer: %s got a new reference while it was to be deleted (%d, %d)\n",
                 Typename(type).c_str(), strong, weak);
}

void SpeakPtr::WarningUnctionChange(int strong, int weak, std::type_info const& type) noexcept {
    std::fprintf(stderr, "pointer: the count of %s changed in its finalUnction (%d, %d)\n",
                 Typename(type).c_str(), strong, weak);
}

void SpeakPtr::printRS(char const* label, char const* operation, std::type_info const& type,
                       bool strongPointer) noexcept {
    std::fprintf(stderr, "trace: %s: %s %s %s\n", label, operation,
                 strongPointer ? "strong" : "weak", Typename(type).c_str());
}

void SpeakPtr::printRS(char const* label, char const* operation, int strong, int weak,
                       std::type_info const& type, void const* block, void const* object) noexcept {
    std::fprintf(stderr, "trace: %s: %s %s (block %p, object %p, %d, %d)\n", label, operation,
                 Typename(type).c_str(), block, object, strong, weak);
}

}  // namespace Nucleo
