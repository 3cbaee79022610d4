// The installed tree as a user meets it: a C and a C++ program built through the CMake package
// and through the pkg-config file.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/pch.hpp"

namespace {

namespace fs = std::filesystem;

// A directory for each test: they may run side by side.
fs::path work_directory() {
  return fs::path(ORK_BUILD_DIR) / "install_test" /
         testing::UnitTest::GetInstance()->current_test_info()->name();
}

// What the command said; it ends well, or is meant to fail.
std::string run(const std::string& command, bool well = true) {
  const std::string log = (work_directory() / "log").string();
  const int code = std::system((command + " >" + log + " 2>&1").c_str());
  std::stringstream text;
  text << std::ifstream(log).rdbuf();
  EXPECT_EQ(code == 0, well) << command << "\n" << text.str();
  return text.str();
}

struct Install : testing::Test {
  const fs::path work = work_directory();
  void SetUp() override {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "a program would need the sanitizer's runtime";
#endif
    fs::remove_all(work);
    fs::create_directories(work);
    run("cmake --install " ORK_BUILD_DIR " --prefix " + (work / "tree").string());
  }
};

TEST_F(Install, CMakePackage) {
  const auto configure = [&](const char* directory, const std::string& width) {
    return "cmake -G Ninja -S " ORK_SOURCE_DIR "/tests/project/installed -B " +
           (work / directory).string() + " -DCMAKE_PREFIX_PATH=" + (work / "tree").string() +
           " -DCMAKE_C_FLAGS=" + width + " -DCMAKE_CXX_FLAGS=" + width;
  };
  EXPECT_NE(run(configure("wide", "-m64"), false).find("-DCMAKE_CXX_FLAGS=-m32"),
            std::string::npos);
  run(configure("user", "-m32"));
  const std::string targets =
      run("cat " + (work / "tree/lib/cmake/ork/ork-targets.cmake").string());
  for (const char* property :
       {"INTERFACE_COMPILE_OPTIONS \"-m32\"", "INTERFACE_LINK_OPTIONS \"-m32\""}) {
    int count = 0;
    for (size_t at = 0; (at = targets.find(property, at)) != std::string::npos; ++at) ++count;
    EXPECT_EQ(count, 3) << property << ": the three libraries";
  }
  run("cmake --build " + (work / "user").string());
  for (const char* program : {"program_c", "program_cpp", "front_c", "front_cpp"})
    run((work / "user" / program).string());
}

// The fields of a .pc file with its variables filled in, as pkg-config would print them.
std::string pc_field(const fs::path& file, const std::string& wanted) {
  std::ifstream lines(file);
  std::vector<std::pair<std::string, std::string>> variables = {
      {"pcfiledir", file.parent_path().string()}};
  const auto expand = [&](std::string text) {
    for (auto v = variables.rbegin(); v != variables.rend(); ++v)
      for (size_t at; (at = text.find("${" + v->first + "}")) != std::string::npos;)
        text.replace(at, v->first.size() + 3, v->second);
    return text;
  };
  for (std::string line; std::getline(lines, line);) {
    const size_t equals = line.find('='), colon = line.find(':');
    if (line.starts_with(wanted + ":")) return expand(line.substr(wanted.size() + 1));
    if (equals < colon)
      variables.emplace_back(line.substr(0, equals), expand(line.substr(equals + 1)));
  }
  return "";
}

TEST_F(Install, PkgConfigFile) {
  const fs::path pc = work / "tree/lib/pkgconfig/ork.pc";
  ASSERT_TRUE(fs::exists(pc));
  const std::string flags = pc_field(pc, "Cflags"), libraries = pc_field(pc, "Libs");
  ASSERT_NE(flags.find("-I"), std::string::npos);
  for (const auto& [compiler, source] : {std::pair{"gcc -std=c11", "program.c"},
                                         {"g++ -std=c++17", "program.cpp"},
                                         {"gcc -std=c11", "front.c"},
                                         {"g++ -std=c++17", "front.cpp"}}) {
    const std::string program = (work / (std::string("pc_") + source)).string() + ".out";
    run(std::string(compiler) +
        " -Wall -Werror -pedantic " ORK_SOURCE_DIR "/tests/project/installed/" + source + " -o " +
        program + " " + flags + " " + libraries);
    run("LD_LIBRARY_PATH=" + (work / "tree/lib").string() + " " + program);
  }
}

}  // namespace
