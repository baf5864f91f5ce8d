/// A speaker that records what the counted pointers report.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <typeinfo>
#include <vector>

#include "host/pointers/SpeakPtr.hpp"

namespace tests {

/// One report of the counted pointers. What the kind of report does not have
/// stays as it is here.
struct PointerReport {
    std::string what;  ///< the operation of `SpeakPtr`
    std::type_info const* type = nullptr;
    int strong = 0;
    int weak = 0;
    void const* block = nullptr;
    void const* object = nullptr;  ///< for `SelfConstruction`: the pointer
    std::string label = {};
    std::string operation = {};
    bool strongPointer = false;
};

/// Is the speaker in force from its construction to its destruction, and gives
/// place to the former one then.
class RecordingSpeaker : public Nucleo::SpeakPtr {
public:
    RecordingSpeaker() : former_(setSpeaker(this)) {}
    RecordingSpeaker(RecordingSpeaker const&) = delete;
    RecordingSpeaker& operator=(RecordingSpeaker const&) = delete;
    ~RecordingSpeaker() override { setSpeaker(former_); }

    void DynPtrInvalid(void const* block, void const* object, int strong, int weak,
                       std::type_info const& type) noexcept override {
        note({"DynPtrInvalid", &type, strong, weak, block, object});
    }
    void SelfConstruction(std::type_info const& type, void const* pointer,
                          void const* block) noexcept override {
        note({"SelfConstruction", &type, 0, 0, block, pointer});
    }
    void DestructionCancelled(int strong, int weak, std::type_info const& type) noexcept override {
        note({"DestructionCancelled", &type, strong, weak});
    }
    void WarningUnctionChange(int strong, int weak, std::type_info const& type) noexcept override {
        note({"WarningUnctionChange", &type, strong, weak});
    }
    void printRS(char const* label, char const* operation, std::type_info const& type,
                 bool strongPointer) noexcept override {
        note({"printRS", &type, 0, 0, nullptr, nullptr, label, operation, strongPointer});
    }
    void printRS(char const* label, char const* operation, int strong, int weak,
                 std::type_info const& type, void const* block,
                 void const* object) noexcept override {
        note({"printRS with counts", &type, strong, weak, block, object, label, operation});
    }

    std::vector<PointerReport> reports;
    /// Called with each report, while the pointer waits.
    std::function<void(PointerReport const&)> atReport;

private:
    void note(PointerReport const& report) noexcept {
        reports.push_back(report);
        if (atReport)
            atReport(report);
    }

    SpeakPtr* former_;
};

/// Switches the tracing of reference operations on for its lifetime.
class Tracing {
public:
    Tracing() { Nucleo::SpeakPtr::Tracing = true; }
    Tracing(Tracing const&) = delete;
    Tracing& operator=(Tracing const&) = delete;
    ~Tracing() { Nucleo::SpeakPtr::Tracing = false; }
};

}  // namespace tests
