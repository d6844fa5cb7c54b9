#include "json_dump.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace tolmar::cli {

namespace {

bool isScalar(const nlohmann::json& j) { return !j.is_array() && !j.is_object(); }

void dumpTo(const nlohmann::json& j, int indent, std::string& out) {
  const std::string pad(static_cast<std::size_t>(indent) + 2, ' ');
  if (j.is_number_float()) {
    const double v = j.get<double>();
    if (!std::isfinite(v)) {
      out += "null";
      return;
    }
    std::array<char, 32> buf{};
    const auto res =
        std::to_chars(buf.data(), buf.data() + buf.size(), v, std::chars_format::general, 17);
    out.append(buf.data(), res.ptr);
  } else if (j.is_array()) {
    const bool flat = std::all_of(j.begin(), j.end(), isScalar);
    out += '[';
    for (std::size_t i = 0; i < j.size(); ++i) {
      if (i > 0) out += flat ? ", " : ",";
      if (!flat) out += "\n" + pad;
      dumpTo(j[i], indent + 2, out);
    }
    if (!flat && !j.empty()) out += "\n" + std::string(static_cast<std::size_t>(indent), ' ');
    out += ']';
  } else if (j.is_object()) {
    out += '{';
    bool first = true;
    for (const auto& [key, value] : j.items()) {
      out += first ? "\n" : ",\n";
      first = false;
      out += pad + nlohmann::json(key).dump() + ": ";
      dumpTo(value, indent + 2, out);
    }
    if (!j.empty()) out += "\n" + std::string(static_cast<std::size_t>(indent), ' ');
    out += '}';
  } else {
    out += j.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  }
}

}  // namespace

std::string dumpJson(const nlohmann::json& j) {
  std::string out;
  dumpTo(j, 0, out);
  return out;
}

}  // namespace tolmar::cli
