/// Memory and pointers: what stands behind `host/pointers`.
#include <cxxabi.h>

#include <cstdlib>
#include <memory>

#include "host/pointers/Ageable.hpp"
#include "host/pointers/Chunk.hpp"
#include "host/pointers/Functor.hpp"
#include "host/pointers/Intercube.hpp"
#include "host/pointers/Interface.hpp"
#include "host/pointers/MutableName.hpp"
#include "host/pointers/PointerID.hpp"
#include "host/pointers/StringList.hpp"
#include "host/pointers/Typename.hpp"

namespace Nucleo {

std::uint32_t PointerID = 0;
std::atomic<Ageable::Stamp> Ageable::GlobalTime{0};
std::size_t ChunkBase::TotalMemsize = 0;

Ageable::~Ageable() = default;
ChunkBase::~ChunkBase() = default;
Functor::~Functor() = default;
Intercube::~Intercube() = default;
InterfaceBase::~InterfaceBase() = default;
StringList::~StringList() = default;

MutableName::MutableName(std::string name) : text_(std::move(name)) {}
MutableName::~MutableName() = default;

std::string Typename(std::type_info const& type) {
    int status = 0;
    std::unique_ptr<char, void (*)(void*)> const readable(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), std::free);
    return status == 0 && readable ? readable.get() : type.name();
}

}  // namespace Nucleo
