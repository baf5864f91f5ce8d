/// Base of values that are functions of one number.
#pragma once

#include "host/pointers/import.hpp"
#include "host/pointers/threads.hpp"

namespace Nucleo {

/// A function of one double.
class NUCLEO_API Functor {
public:
    Functor() = default;
    Functor(Functor const&) = default;
    Functor& operator=(Functor const&) = default;
    virtual ~Functor();

    /// The function's value. [reader]
    virtual double operator()(double t) const = 0;
};

}  // namespace Nucleo
