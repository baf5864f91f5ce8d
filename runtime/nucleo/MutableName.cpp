#include "host/pointers/MutableName.hpp"

namespace Nucleo {

MutableName::MutableName(std::string name) : text_(std::move(name)) {}
MutableName::~MutableName() = default;

}  // namespace Nucleo
