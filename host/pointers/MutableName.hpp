/// Base of everything that has a name which can change.
#pragma once

#include <string>
#include <utility>

#include "host/pointers/import.hpp"

namespace Nucleo {

/// Threads: a name changes only while nobody else reads it.
class NUCLEO_API MutableName {
public:
    explicit MutableName(std::string name = {});
    virtual ~MutableName();

    std::string const& Name() const noexcept { return text_; }
    void setName(std::string name) { text_ = std::move(name); }

private:
    std::string text_;
};

}  // namespace Nucleo
