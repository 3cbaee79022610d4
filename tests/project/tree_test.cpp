// Which folder may include which. A domain sees base/, the public headers and itself. In zem/ a
// function sees its family's folder but no other function's, a family the frame and common/; the
// complex functions are made of the real families and see what those share.
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>

#include "support/pch.hpp"

namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

const fs::path root = ORK_SOURCE_DIR;

// Where the compiler looks for the kernels' headers.
const char* const search[] = {"", "include", "zem/zem_core", "rua", "df/df_kernel"};

// The families and what stands beside them: what each may see besides itself.
const Names ground = {"frame", "common"};
const std::map<std::string, Names> below = {
    {"frame", {}},
    {"common", {"frame"}},
    {"heap/real", {"frame"}},
    {"heap/complex", {"frame", "heap/real"}},
    {"arcs", ground},
    {"areas", ground},
    {"arithmetic", ground},
    {"error_functions", ground},
    {"exponentials", ground},
    {"gamma", ground},
    {"logarithms", ground},
    {"packing", ground},
    {"powers", ground},
    {"roots", ground},
    {"rounding", ground},
    {"trig", ground},
    {"complex",
     {"frame", "common", "heap/complex", "arcs", "arithmetic", "exponentials", "logarithms",
      "roots", "trig"}},
};

// A file's place: "rua", "", "" or "zem", "arcs", "acos".
struct Place {
  std::string domain, family, function;
};

Place place(const fs::path& path) {
  const std::vector<fs::path> parts(path.begin(), path.end());
  Place p{parts[0], "", ""};
  if (p.domain != "zem") return p;
  const size_t family = parts[2] == "heap" ? 2 : 1;
  for (size_t i = 2; i < parts.size() - 1; ++i) {
    std::string& name = i < 2 + family ? p.family : p.function;
    name += (name.empty() ? "" : "/") + parts[i].string();
  }
  return p;
}

bool may_see(const Place& from, const Place& to) {
  if (to.domain == "base" || to.domain == "include") return true;
  if (from.domain != to.domain) return false;
  if (from.domain != "zem") return true;
  if (!to.function.empty()) return from.family == to.family && from.function == to.function;
  return from.family == to.family || below.at(from.family).contains(to.family);
}

fs::path resolved(const std::string& name) {
  for (const char* folder : search)
    if (fs::exists(root / folder / name)) return (fs::path(folder) / name).lexically_normal();
  return {};
}

TEST(Tree, FoldersIncludeOnlyWhatLiesBelowThem) {
  const std::regex include(R"re(^\s*#\s*include\s*"([^"]+)")re");
  int count = 0;
  for (const char* domain : {"base", "zem", "rua", "df"})
    for (const auto& entry : fs::recursive_directory_iterator(root / domain)) {
      if (!entry.is_regular_file()) continue;
      const fs::path file = fs::relative(entry.path(), root);
      const Place from = place(file);
      if (from.domain == "zem") {
        ASSERT_TRUE(below.contains(from.family)) << file << ": a family without a row";
      }
      std::ifstream text(entry.path());
      std::smatch found;
      for (std::string line; std::getline(text, line);) {
        if (!std::regex_search(line, found, include)) continue;
        ++count;
        const fs::path to = resolved(found[1]);
        if (to.empty()) {
          ADD_FAILURE() << file << " includes " << found[1] << ", not by its path from a root";
        } else {
          EXPECT_TRUE(may_see(from, place(to))) << file << " includes " << to;
        }
      }
    }
  EXPECT_GT(count, 500);
}

}  // namespace
