#include "host/pointers/Typename.hpp"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>

namespace Nucleo {

std::string Typename(std::type_info const& type) {
    int status = 0;
    std::unique_ptr<char, void (*)(void*)> const readable(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), std::free);
    return status == 0 && readable ? readable.get() : type.name();
}

}  // namespace Nucleo
