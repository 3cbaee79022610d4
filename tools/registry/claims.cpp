#include "registry/claims.hpp"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

// Decimal, 2^k, or the bits of a double or a float as 0x and 16 or 8 digits.
double number(const std::string& text) {
  if (text.starts_with("2^")) return std::ldexp(1.0, std::atoi(text.c_str() + 2));
  if (text.starts_with("0x") && text.find('p') == std::string::npos) {
    const uint64_t image = std::strtoull(text.c_str(), nullptr, 16);
    return text.size() > 10 ? std::bit_cast<double>(image) : std::bit_cast<float>(uint32_t(image));
  }
  return std::strtod(text.c_str(), nullptr);
}

bool parse(const std::string& line, Claims& claims) {
  std::istringstream fields(line);
  std::string kind, name, word;
  if (!(fields >> kind) || kind[0] == '#') return true;
  if (!(fields >> name)) return false;
  std::vector<std::string> rest;
  while (fields >> word && word[0] != '#') rest.push_back(word);
  const auto range = [&](size_t first, bool log) {
    const bool two = rest.size() == first + 4;
    return Range{log, number(rest[first]), number(rest[first + 1]),
                 number(rest[two ? first + 2 : first]), number(rest[two ? first + 3 : first + 1])};
  };
  if (kind == "claim" && rest.size() == 2 && rest[1] == "modulus")
    claims.bounds[name + " modulus"] = {number(rest[0]), false};
  else if (kind == "claim" && rest.size() == 2 && (rest[1] == "ulp" || rest[1] == "rel"))
    claims.bounds[name] = {number(rest[0]), rest[1] == "rel"};
  else if (kind == "range" && (rest.size() == 3 || rest.size() == 5) &&
           (rest[0] == "lin" || rest[0] == "log"))
    claims.ranges[name].push_back(range(1, rest[0] == "log"));
  else if (kind == "near")
    for (const auto& value : rest) claims.near[name].push_back(number(value));
  else if (kind == "omit" && rest.size() == 2)
    claims.omitted[name].push_back(range(0, false));
  else if (kind == "bench" && (rest.size() == 2 || rest.size() == 4))
    claims.bench[name] = range(0, false);
  else
    return false;
  return true;
}

}  // namespace

Claims read_claims(const std::string& root) {
  Claims claims;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root + "/zem/zem_core")) {
    if (entry.path().filename() != "claims.tsv") continue;
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);)
      if (!parse(line, claims)) {
        std::fprintf(stderr, "%s: cannot read: %s\n", entry.path().c_str(), line.c_str());
        std::exit(2);
      }
  }
  return claims;
}
