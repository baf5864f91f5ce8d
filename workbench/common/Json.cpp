#include "workbench/common/Json.hpp"

template class nlohmann::basic_json<nlohmann::ordered_map>;

namespace workbench {

std::string jsonText(Json const& json, int indent) {
    return json.dump(indent, ' ', false, Json::error_handler_t::replace);
}

Json readJson(std::string const& text) {
    return Json::parse(text, nullptr, false);
}

}  // namespace workbench
