/// Base of everything that can serve as a context.
#pragma once

#include "host/pointers/import.hpp"

namespace Nucleo {

/// What an object is created or shown in. It carries nothing itself.
class NUCLEO_API Intercube {
public:
    virtual ~Intercube();
};

}  // namespace Nucleo
