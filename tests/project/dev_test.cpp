// The script of the project where its user meets trouble: a copy of it, with programs of the
// test's own first in the path.
#include <sys/wait.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/pch.hpp"

namespace {

namespace fs = std::filesystem;

struct Dev : testing::Test {
  const fs::path work = fs::path(ORK_BUILD_DIR) / "dev_test" /
                        testing::UnitTest::GetInstance()->current_test_info()->name();
  std::string said;  // on both outputs, and into the file $CALLS

  void SetUp() override {
    fs::remove_all(work);
    fs::create_directories(work / "bin");
    fs::copy_file(ORK_SOURCE_DIR "/dev", work / "dev");
    fs::create_directory_symlink(ORK_BUILD_DIR, work / "build");
    program("dpkg-query", "echo ii");  // everything is installed
  }
  void program(const std::string& name, const std::string& script) {
    std::ofstream(work / "bin" / name) << "#!/bin/sh\n" << script << "\n";
    fs::permissions(work / "bin" / name, fs::perms::all);
  }
  int run(const std::string& arguments, const std::string& path) {
    const std::string log = (work / "log").string(), calls = (work / "calls").string();
    const int code =
        std::system(("CALLS=" + calls + " PATH=" + (work / "bin").string() + path + " /bin/bash " +
                     (work / "dev").string() + " " + arguments + " >" + log + " 2>&1")
                        .c_str());
    said.clear();
    for (const std::string& file : {log, calls}) {
      std::stringstream text;
      text << std::ifstream(file).rdbuf();
      said += text.str();
    }
    return WIFEXITED(code) ? WEXITSTATUS(code) : -1;
  }
  void expect(std::initializer_list<const char*> parts) const {
    for (const char* part : parts) EXPECT_NE(said.find(part), std::string::npos) << part << said;
  }
};

// Nothing of this system but what the script itself needs, above all neither apt-get nor sudo.
TEST_F(Dev, WithoutRootItSaysWhatIsMissingAndHowToGetIt) {
  program("id", "echo 1000");
  program("dpkg-query", "case $3 in cmake|googletest) exit 1;; esac; echo ii");
  for (const char* tool : {"dirname", "grep", "cat", "env"})
    fs::create_symlink(std::string("/usr/bin/") + tool, work / "bin" / tool);
  EXPECT_NE(run("setup", ""), 0);
  expect({"cmake googletest", "As root:  apt-get update && apt-get install"});
  EXPECT_EQ(said.find("g++-multilib"), std::string::npos) << said;
}

TEST_F(Dev, ATestThatDoesNotExistIsAFailure) {
  program("cmake", "exit 0");
  EXPECT_NE(run("test NoSuchTestAnywhere", ":$PATH"), 0);
  expect({"No tests were found"});
}

TEST_F(Dev, InstallBuildsTheLibrariesAlone) {
  program("cmake", "echo cmake \"$@\" >>$CALLS");
  EXPECT_EQ(run("install /some/where", ":$PATH"), 0);
  expect({"build --target ork_front\n", "--install", "--prefix /some/where"});
  std::istringstream lines(said);
  for (std::string line; std::getline(lines, line);)
    EXPECT_TRUE(line.find("--build") == std::string::npos || line.ends_with("--target ork_front"));
}

}  // namespace
