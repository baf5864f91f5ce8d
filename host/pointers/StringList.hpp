/// A shared list of texts.
#pragma once

#include <list>
#include <string>

#include "host/pointers/ReferenceBase.hpp"
#include "host/pointers/import.hpp"

namespace Nucleo {

/// Root of the family of counted text lists.
class NUCLEO_API StringList : public ReferenceBase<StringList>, public std::list<std::string> {
public:
    ~StringList() override;
};

}  // namespace Nucleo
