#include "host/pointers/Chunk.hpp"

namespace Nucleo {

std::size_t ChunkBase::TotalMemsize = 0;

ChunkBase::~ChunkBase() = default;

}  // namespace Nucleo
