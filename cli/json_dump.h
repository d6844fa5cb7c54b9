// JSON text for tolmar-cli's output: doubles with 17 significant digits
// (printf's %.17g, free of the locale), so that every double reads back
// bit for bit; arrays of plain values on one line, objects one key a line.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace tolmar::cli {

// A non-finite double, which the store should never hold, is written null.
std::string dumpJson(const nlohmann::json& j);

}  // namespace tolmar::cli
