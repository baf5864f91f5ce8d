/// What the judge says of a plug-in.
#pragma once

#include <map>
#include <nlohmann/json.hpp>

#include "tests/workbench/cli/telmbench.hpp"

namespace tests {

/// The results that are not simply passed, by test: "failed", "crashed", ...
struct Judgement {
    int status = -1;
    nlohmann::json document;
    std::map<std::string, std::string> against;  ///< failed, crashed or timed out
    std::map<std::string, std::string> warnings;
};

inline Judgement judged(std::string const& plugin, Lines const& options = {}) {
    Lines arguments{"validate", fileBeside(plugin + ".telm"), "--json", "--quick", "--seed", "1"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    ProcessResult const process = telmbench(arguments);
    Judgement result;
    result.status = process.status;
    result.document = nlohmann::json::parse(process.out, nullptr, false);
    if (result.document.is_discarded()) {
        ADD_FAILURE() << process.err;
        return result;
    }
    for (auto const& each : result.document["tests"]) {
        std::string const kind = each["result"], seen = each["seen"];
        if (kind == "failed" || kind == "crashed" || kind == "timed out")
            result.against[each["test"]] = kind + ": " + seen;
        if (kind == "warning")
            result.warnings[each["test"]] = seen;
    }
    return result;
}

}  // namespace tests
