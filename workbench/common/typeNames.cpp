#include "workbench/common/typeNames.hpp"

#include <array>

#include "host/colormap/Colormap.hpp"
#include "host/pointers/Typename.hpp"
#include "host/values/VValueTrait.hpp"

namespace workbench {

std::string typeName(std::type_info const& type) {
    struct Known {
        std::type_info const& type;
        char const* name;
    };
    static std::array const known{
        Known{typeid(double), "double"},
        Known{typeid(int), "int"},
        Known{typeid(bool), "bool"},
        Known{typeid(Tessar::rgba_float_t), "rgba_float_t"},
        Known{typeid(Orlo::Enum), "Enum"},
        Known{typeid(Orlo::FlagList), "FlagList"},
        Known{typeid(Orlo::Range), "Range"},
        Known{typeid(Orlo::VTime), "VTime"},
        Known{typeid(Orlo::ColormapPtr), "ColormapPtr"},
        Known{typeid(std::string), "string"},
    };
    for (Known const& each : known)
        if (each.type == type)
            return each.name;
    return Nucleo::Typename(type);
}

}  // namespace workbench
