#include "host/pointers/Ageable.hpp"

namespace Nucleo {

std::atomic<Ageable::Stamp> Ageable::GlobalTime{0};

Ageable::~Ageable() = default;

}  // namespace Nucleo
