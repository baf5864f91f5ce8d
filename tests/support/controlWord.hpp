/// The precision of a thread's extended arithmetic.
#pragma once

#include <cstdint>

namespace tests {

#if defined(__x86_64__)

/// While it lives, this thread's x87 rounds to the given precision. Threads
/// start with 64 bits on Linux, and with 53 on Windows unless the C++ runtime
/// has started them.
class PrecisionOfExtended {
public:
    enum Bits : std::uint16_t { Single = 0x000, Double = 0x200, Extended = 0x300 };

    explicit PrecisionOfExtended(Bits bits) {
        asm volatile("fnstcw %0" : "=m"(before_));
        load(static_cast<std::uint16_t>((before_ & ~Extended) | bits));
    }
    PrecisionOfExtended(PrecisionOfExtended const&) = delete;
    PrecisionOfExtended& operator=(PrecisionOfExtended const&) = delete;
    ~PrecisionOfExtended() { load(before_); }

private:
    static void load(std::uint16_t word) { asm volatile("fldcw %0" : : "m"(word)); }

    std::uint16_t before_ = 0;
};

#endif

}  // namespace tests
