#include "workbench/session/typeNames.hpp"

#include <array>
#include <string_view>

#include "host/colormap/Colormap.hpp"
#include "host/pointers/Typename.hpp"
#include "host/values/VValueTrait.hpp"

namespace workbench {

namespace {

/// The last name of a type: "Bundle" of `std::shared_ptr<space::Bundle const>`.
std::string lastName(std::string name) {
    constexpr std::string_view Shared = "std::shared_ptr<";
    constexpr std::string_view Constant = " const>";
    if (name.starts_with(Shared) && name.ends_with(Constant))
        name = name.substr(Shared.size(), name.size() - Shared.size() - Constant.size());
    std::size_t const colons =
        name.find('<') == std::string::npos ? name.rfind("::") : std::string::npos;
    return colons == std::string::npos ? name : name.substr(colons + 2);
}

}  // namespace

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
    return lastName(Nucleo::Typename(type));
}

}  // namespace workbench
