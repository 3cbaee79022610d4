// The built library as a file: what it exports, what it needs, what it must not hold.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>

#include "registry/kernels.hpp"
#include "support/pch.hpp"

namespace {

namespace fs = std::filesystem;
const std::string library = ORK_LIB_DIR "/libork_zem_p4m.so";

std::string output_of(const std::string& command) {
  std::string text;
  std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  char part[4096];
  while (size_t n = fread(part, 1, sizeof part, pipe.get())) text.append(part, n);
  return text;
}

std::set<std::string> words_of(const std::string& text) {
  std::istringstream stream(text);
  std::set<std::string> words;
  for (std::string word; stream >> word;) words.insert(word);
  return words;
}

// The shared object as it is shipped; sanitizers add names, libraries and constructors.
struct Library : testing::Test {
  void SetUp() override {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "not the shape that is shipped";
#endif
  }
};

std::string contents(const fs::path& path) {
  std::ifstream file(path);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

// "ork_zem_kernel_dExp_W7HAynn" of a slot's level.
std::string kernel_name(const Slot& slot, int level) {
  const std::string kernel = slot.kernels[level];
  return std::string("ork_zem_kernel_") + slot.type + slot.function + "_" + kernel +
         (kernel.ends_with("EP") ? "nnn" : "ynn");
}

void check_exports(const std::string& file_of_library, const std::string& lists) {
  std::set<std::string> expected;
  for (const auto& file : fs::directory_iterator(ORK_SOURCE_DIR "/tests/project/" + lists))
    expected.merge(words_of(contents(file.path())));
  std::set<std::string> exported;
  std::istringstream lines(output_of("nm -D --defined-only " + file_of_library));
  // Every name has the version of its library, which itself is a name.
  for (std::string address, kind, name; lines >> address >> kind >> name;) {
    const size_t at = name.find("@@ORK_0");
    if (at != std::string::npos)
      exported.insert(name.substr(0, at));
    else
      EXPECT_EQ(name, "ORK_0") << "without a version";
  }
  for (const auto& name : exported)
    EXPECT_TRUE(expected.count(name)) << "exported, not meant to be: " << name;
  for (const auto& name : expected) EXPECT_TRUE(exported.count(name)) << "not exported: " << name;
}

TEST_F(Library, ExportsExactlyWhatIsMeant) { check_exports(library, "exports"); }

TEST_F(Library, FrontExportsExactlyWhatIsMeantAndIsNeededByNone) {
  const std::string front = ORK_LIB_DIR "/libork_front.so";
  check_exports(front, "front_exports");
  const std::string needs = output_of("readelf -dW " + front);
  for (const char* name : {"[libork_zem_p4m.so.0]", "[libork_outer.so.0]", "[$ORIGIN]"})
    EXPECT_NE(needs.find(name), std::string::npos) << name;
  EXPECT_EQ(needs.find("libstdc++"), std::string::npos);
  EXPECT_EQ(output_of("readelf -dW " ORK_LIB_DIR "/libork_outer.so").find("libork_front"),
            std::string::npos);
}

TEST_F(Library, EverySlotHasItsKernel) {
  for (const Slot& slot : slots)
    for (int level = 0; level < 3; ++level)
      EXPECT_TRUE(slot.exists(level)) << kernel_name(slot, level);
}

TEST_F(Library, NeedsOnlyTheCLibraryAndTheOuterOne) {
  std::set<std::string> needed;
  std::istringstream lines(output_of("readelf -dW " + library));
  std::string run_path;
  for (std::string line; std::getline(lines, line);) {
    const size_t open = line.find('['), close = line.find(']');
    if (line.find("(NEEDED)") != std::string::npos)
      needed.insert(line.substr(open + 1, close - open - 1));
    if (line.find("(RUNPATH)") != std::string::npos)
      run_path = line.substr(open + 1, close - open - 1);
  }
  for (const auto& name : needed)
    EXPECT_TRUE(name == "libork_outer.so.0" || name == "libc.so.6" || name == "libm.so.6" ||
                name == "ld-linux.so.2")
        << name;
  EXPECT_TRUE(needed.count("libork_outer.so.0"));
  EXPECT_EQ(run_path, "$ORIGIN");
}

TEST_F(Library, RunsNothingAtLoadAndIsAProperSharedObject) {
  const std::string sections = output_of("readelf -SW " + library);
  for (const char* name : {".ctors", ".init_array", ".preinit_array", ".init "})
    EXPECT_EQ(sections.find(name), std::string::npos) << name;
  const std::string undefined = output_of("nm -D --undefined-only " + library);
  for (const char* name :
       {"_Zn", "_ZN", "__cxa_throw", "__gxx_personality", "__cxa_guard", "GOMP_"})
    EXPECT_EQ(undefined.find(name), std::string::npos) << name;
  const std::string flags = output_of("readelf -dlW " + library);
  EXPECT_EQ(flags.find("TEXTREL"), std::string::npos);
  EXPECT_EQ(flags.find("RWE"), std::string::npos) << "executable stack";
  EXPECT_NE(output_of("readelf -hW " + library).find("ELF32"), std::string::npos);
}

TEST_F(Library, StubsReachTheSlotsKernels) {
  // Machine code of a stub cannot be compared by address: a callback-free call can.
  const double a[] = {3, -2};
  double by_stub[2], by_table[2];
  for (const auto stub : {_zemdAdd, _zemdAdd_50, _zemdAdd_HA, _zemdAdd_26}) {
    stub(2, a, a, by_stub);
    ork_zem_kernel_dAdd_ttab[1](2, a, a, by_table);
    EXPECT_EQ(memcmp(by_stub, by_table, sizeof by_stub), 0);
  }
  const float x[] = {-3, 2};
  float r[2];
  for (const auto stub : {_zemsAbs, _zemsAbs_21, _zemsAbs_HA, _zemsAbs_11}) {
    stub(2, x, r);
    EXPECT_EQ(r[0], 3);
  }
  EXPECT_EQ(ork_zem_kernel_dExp_ctab[0], 11.22f);
  EXPECT_EQ(ork_zem_kernel_dExp_ctab[1], 17.91f);
  EXPECT_EQ(ork_zem_kernel_dExp_ctab[2], 8.81f);
}

// Every stub jumps through its own table at its own slot: read from its machine code.
TEST_F(Library, EveryStubNamesItsTableAndSlot) {
  std::istringstream lines(output_of("objdump -d --no-show-raw-insn " + library));
  std::istringstream symbols(output_of("nm -D --defined-only " + library));
  std::istringstream got(output_of("readelf -SW " + library));
  unsigned long base = 0;
  for (std::string word; got >> word;)
    if (word == ".got.plt" || (word == ".got" && base == 0)) {
      std::string type, address;
      got >> type >> address;
      base = std::stoul(address, nullptr, 16);
    }
  std::map<std::string, unsigned long> address;
  for (std::string a, kind, name; symbols >> a >> kind >> name;)
    address[name.substr(0, name.find("@@"))] = std::stoul(a, nullptr, 16);
  std::map<std::string, unsigned long> target;  // stub -> address of the slot it jumps through
  std::string current;
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with(">:"))
      current = line.substr(line.find('<') + 1, line.size() - line.find('<') - 3);
    const size_t jump = line.find("jmp    *");
    if (jump != std::string::npos && current.starts_with("_zem") && address.count(current))
      target[current] = base + unsigned(std::stol(line.substr(jump + 8), nullptr, 16));
  }
  int checked = 0;
  for (const Slot& slot : slots) {
    const std::string base_name = std::string("_zem") + slot.type + slot.function;
    const bool wide = slot.type == 'd' || slot.type == 'z';
    const std::pair<std::string, int> stubs[] = {
        {wide ? "_50" : "_21", 0}, {"_HA", 1}, {"", 1}, {wide ? "_26" : "_11", 2}};
    const unsigned long table =
        address.at(std::string("ork_zem_kernel_") + slot.type + slot.function + "_ttab");
    for (const auto& [suffix, level] : stubs) {
      EXPECT_EQ(target[base_name + suffix], table + 4 * unsigned(level)) << base_name << suffix;
      ++checked;
    }
  }
  EXPECT_EQ(checked, int(slots.size()) * 4);
}

}  // namespace
