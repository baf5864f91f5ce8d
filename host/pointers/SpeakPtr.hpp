/// Diagnostics of the counted pointers.
#pragma once

#include <typeinfo>

#include "host/pointers/import.hpp"
#include "host/pointers/threads.hpp"

namespace Nucleo {

/// The object that counted pointers report to.
///
/// The inline code of the pointers calls `theSpeaker()` on the paths that a
/// correct program never takes, and, while `Tracing` is on, on every strong
/// reference taken and released.
///
/// Owner: the speaker in force belongs to whoever set it. Threads: every report
/// may come from any thread; `setSpeaker` is [host]. Errors: a speaker must not
/// throw, since pointers report from destructors.
class NUCLEO_API SpeakPtr {
public:
    virtual ~SpeakPtr();

    /// The reporting object in force; never null. [any]
    static SpeakPtr* theSpeaker() noexcept;

    /// Puts another reporting object in force; null restores the host's own,
    /// which writes one line a report to standard error. Gives the former one.
    /// [host]
    static SpeakPtr* setSpeaker(SpeakPtr* speaker) noexcept;

    /// Whether reference operations are traced through `printRS`.
    static bool Tracing;

    /// The last strong reference went and found its object not alive. [any]
    virtual void DynPtrInvalid(void const* block, void const* object, int strong, int weak,
                               std::type_info const& type) noexcept;

    /// A pointer was built from itself or assigned to itself. [any]
    virtual void SelfConstruction(std::type_info const& type, void const* pointer,
                                  void const* block) noexcept;

    /// The strong count reached zero, but a new reference came before the
    /// object was deleted. [any]
    virtual void DestructionCancelled(int strong, int weak, std::type_info const& type) noexcept;

    /// The strong count changed during `finalUnction`. [any]
    virtual void WarningUnctionChange(int strong, int weak, std::type_info const& type) noexcept;

    /// Traces a reference operation: who (`label`), what (`operation`), on
    /// which type, and whether the pointer is a strong one. [any]
    virtual void printRS(char const* label, char const* operation, std::type_info const& type,
                         bool strongPointer) noexcept;

    /// The longer form, with both counts, the control block and the object.
    /// [any]
    virtual void printRS(char const* label, char const* operation, int strong, int weak,
                         std::type_info const& type, void const* block,
                         void const* object) noexcept;
};

}  // namespace Nucleo
