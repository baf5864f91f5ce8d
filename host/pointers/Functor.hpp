/// Base of values that are functions of one number.
#pragma once

#include "host/pointers/import.hpp"

namespace Nucleo {

/// A function of one double. [reader]
class NUCLEO_API Functor {
public:
    Functor() = default;
    Functor(Functor const&) = default;
    Functor& operator=(Functor const&) = default;
    virtual ~Functor();

    virtual double operator()(double t) const = 0;
};

}  // namespace Nucleo
