// The demo as its user runs it: the page it writes, its figures against a recomputation, what it
// reads, where it writes, and what it says when it cannot.
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "support/pch.hpp"

namespace {

namespace fs = std::filesystem;
const std::string shipped = ORK_SOURCE_DIR "/examples/data/us_macro.csv";
typedef std::map<std::string, double> Figures;  // the value of each <data id>

std::string contents(const fs::path& path) {
  std::stringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

struct Demo : testing::Test {
  const fs::path work = fs::path(ORK_BUILD_DIR) / "demo_test" /
                        testing::UnitTest::GetInstance()->current_test_info()->name();
  std::string out, err;

  void SetUp() override {
    fs::remove_all(work);
    fs::create_directories(work);
  }
  // Exit code of the demo, run in the work directory.
  int run(const std::string& arguments, const std::string& before = "") {
    const std::string command = "cd " + work.string() + " && " + before +
                                " " ORK_BUILD_DIR "/bin/demo " + arguments + " >out.txt 2>err.txt";
    const int code = std::system(command.c_str());
    out = contents(work / "out.txt"), err = contents(work / "err.txt");
    return WIFEXITED(code) ? WEXITSTATUS(code) : -1;
  }
  std::set<std::string> files() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(work)) names.insert(entry.path().filename());
    return names;
  }
  void write(const std::string& name, const std::string& text) {
    std::ofstream(work / name) << text;
  }
};

// ---- The page ----------------------------------------------------------------------------

std::string attribute(const std::string& tag, const std::string& name) {
  const size_t at = tag.find(" " + name + "=\"");
  EXPECT_NE(at, std::string::npos) << name << " in " << tag;
  const size_t start = at + name.size() + 3;
  return tag.substr(start, tag.find('"', start) - start);
}

double number(const std::string& tag, const std::string& name) {
  const std::string text = attribute(tag, name);
  char* rest;
  const double value = strtod(text.c_str(), &rest);
  EXPECT_TRUE(!text.empty() && *rest == 0 && std::isfinite(value)) << name << " in " << tag;
  return value;
}

// Tags are closed in turn, and everything lies inside its drawing. Returns the figures.
Figures check_page(const std::string& html) {
  Figures figures;
  std::vector<std::string> open;
  double width = 0, height = 0;  // of the drawing at hand
  const auto inside = [&](double x, double y) {
    return x >= 0 && x <= width + 0.2 && y >= 0 && y <= height + 0.2;
  };
  EXPECT_TRUE(html.starts_with("<!DOCTYPE html>\n"));
  for (const char* outside : {"http:", "https:", "src=", "<script", "url(", "@import", "<link"})
    EXPECT_EQ(html.find(outside), std::string::npos) << outside;
  for (size_t at = html.find('\n'); (at = html.find('<', at)) != std::string::npos;) {
    const size_t end = html.find('>', at);
    const std::string tag = html.substr(at + 1, end - at - 1);
    const std::string name = tag.substr(0, tag.find_first_of(" /", 1));
    at = end;
    if (tag[0] == '/') {
      EXPECT_EQ("/" + (open.empty() ? "" : open.back()), name);
      if (open.empty()) break;
      open.pop_back();
      continue;
    }
    if (tag.back() != '/') open.push_back(name);
    if (name == "svg") {
      EXPECT_EQ(sscanf(attribute(tag, "viewBox").c_str(), "0 0 %lf %lf", &width, &height), 2);
      EXPECT_FALSE(attribute(tag, "aria-label").empty());
    } else if (name == "path") {
      const std::string d = attribute(tag, "d");
      EXPECT_EQ(d[0], 'M') << d;
      for (size_t p = 0; (p = d.find_first_of("ML", p)) != std::string::npos; ++p) {
        double x, y;
        EXPECT_EQ(sscanf(&d[p + 1], "%lf %lf", &x, &y), 2) << d;
        EXPECT_TRUE(inside(x, y)) << x << " " << y << " in " << d;
      }
    } else if (name == "circle") {
      EXPECT_TRUE(inside(number(tag, "cx"), number(tag, "cy"))) << tag;
    } else if (name == "text") {
      EXPECT_TRUE(inside(number(tag, "x"), number(tag, "y"))) << tag;
    } else if (name == "rect") {
      const double x = number(tag, "x"), y = number(tag, "y"), w = number(tag, "width"),
                   h = number(tag, "height");
      EXPECT_TRUE(w >= 0 && h >= 0 && inside(x, y) && inside(x + w, y + h)) << tag;
    } else if (name == "data") {
      EXPECT_TRUE(figures.emplace(attribute(tag, "id"), number(tag, "value")).second) << tag;
    }
  }
  EXPECT_TRUE(open.empty());
  return figures;
}

TEST_F(Demo, ShippedDataGiveAWholePageWithTheRightFigures) {
  ASSERT_EQ(run(shipped + " report.html"), 0) << err;
  EXPECT_EQ(files(), (std::set<std::string>{"out.txt", "err.txt", "report.html"}));
  const std::string html = contents(work / "report.html");
  const Figures figures = check_page(html);
  int drawings = 0;
  for (size_t at = 0; (at = html.find("<svg", at)) != std::string::npos; ++at) ++drawings;
  EXPECT_EQ(drawings, 12);                                        // six figures in two widths
  EXPECT_NE(html.find("Public domain.</p>"), std::string::npos);  // the table's own note
  std::ifstream expected(ORK_SOURCE_DIR "/tests/project/demo_figures.tsv");
  int compared = 0;
  for (std::string line; std::getline(expected, line);) {
    if (line.starts_with("#")) continue;
    const std::string id = line.substr(0, line.find('\t'));
    const double value = std::stod(line.substr(id.size()));
    ASSERT_TRUE(figures.count(id)) << id;
    EXPECT_NEAR(figures.at(id), value, 1e-11 * std::max(std::fabs(value), 1.0)) << id;
    ++compared;
  }
  EXPECT_EQ(compared, 112);
  for (const auto& [id, value] : figures) {  // errors stay inside what the kernels declare
    const auto within = [&](const char* kind, double low, double high) {
      EXPECT_TRUE(!id.starts_with(kind) || (value >= low && value <= high)) << id << " " << value;
    };
    within("ulp-ha-", 0.49, 1), within("ulp-la-", 0.49, 4), within("bits-ep-", 10, 53);
  }
  EXPECT_NE(out.find("restored stream: 505000 numbers equal"), std::string::npos) << out;
  EXPECT_NE(out.find("report: report.html"), std::string::npos) << out;
}

// ---- Other input -------------------------------------------------------------------------

const std::string head = "year,quarter,realgdp,realcons,realinv,cpi,tbilrate,unemp\n";

// Consecutive quarters from 2001 Q1 on, with some movement in every column.
std::string rows(int count, int skip = -1) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    if (i == skip) continue;
    const int wave = (i * 7) % 11;
    text += std::to_string(2001 + i / 4) + "," + std::to_string(i % 4 + 1);
    for (int level : {1000, 700, 150, 90}) text += "," + std::to_string(level + i + wave);
    text += ",2." + std::to_string(wave % 10) + "," + std::to_string(5 + (i * 5) % 7) + ".5\n";
  }
  return text;
}

std::string replaced(std::string text, const std::string& what, const std::string& with,
                     bool everywhere = false) {
  size_t at = text.find(what);
  EXPECT_NE(at, std::string::npos) << what;
  do text.replace(at, what.size(), with);
  while (everywhere && (at = text.find(what, at + with.size())) != std::string::npos);
  return text;
}

// The same table in other dress, and on other numbers of threads.
TEST_F(Demo, ReadsWhatProgramsWriteAsCsv) {
  const std::string plain = "# <b>\"A\" & B</b>\n" + head + rows(20);
  const std::string quoted =
      replaced(replaced(plain, "year,", "\"year\" ,"), "2001,2,", "\"2001\",2,");
  const std::string with_text = [&] {  // a nameless column twice, and one of text
    std::string text;
    std::istringstream lines(head + rows(20));
    for (std::string line; std::getline(lines, line);)
      text += ",," + line + (text.empty() ? ",notes\n" : ",\"a, \"\"b\"\"\n c\"\n");
    return text;
  }();
  const struct {
    const char* what;
    std::string text, threads;
  } cases[] = {{"plain", plain, "1"},
               {"three threads", plain, "3"},
               {"carriage returns", replaced(plain, "\n", "\r\n", true) + "\r\n\r\n", "2"},
               {"byte order mark", "\xEF\xBB\xBF" + plain, "2"},
               {"byte order mark before the names", "\xEF\xBB\xBF" + head + rows(20), "2"},
               {"semicolons", replaced(plain, ",", ";", true), "2"},
               {"tabs", replaced(plain, ",", "\t", true), "2"},
               {"quotes", quoted, "2"},
               {"columns of no interest", with_text, "2"}};
  Figures first;
  for (const auto& c : cases) {
    write("in.csv", c.text);
    ASSERT_EQ(run("in.csv out.html", "OMP_NUM_THREADS=" + c.threads), 0) << c.what << ": " << err;
    const std::string html = contents(work / "out.html");
    const Figures figures = check_page(html);
    if (first.empty()) {
      first = figures;
      EXPECT_NE(html.find("&lt;b&gt;&quot;A&quot; &amp; B&lt;/b&gt;"), std::string::npos);
    }
    // Draws and errors have the same bits on any number of threads; sums have their own order.
    for (const auto& [id, value] : first) {
      const double sum = std::fabs(value) * 1e-13 + 1e-15;
      EXPECT_NEAR(figures.at(id), value,
                  id.starts_with("boot-low") || id.starts_with("ulp") ? 0 : sum)
          << c.what << " " << id;
    }
  }
}

TEST_F(Demo, SaysWhatIsWrongWithItsInputAndWritesNothing) {
  const std::string good = head + rows(24);
  // Columns that move too little, in their last field.
  const auto flat = [](const char* first, const char* second) {
    std::string text = head;
    std::istringstream lines(rows(24));
    for (std::string line; std::getline(lines, line);)
      text += line.substr(0, line.rfind(',') + 1) + (text.size() % 2 ? first : second) + "\n";
    return text;
  };
  // Growth that determines unemployment's change: 2 points down for each doubling.
  std::string strict = head;
  for (int i = 0, level = 8; i < 24; ++i) {
    level += i % 3 == 1 ? -2 : 1;
    const std::string size = std::to_string(1 << level) + ",";
    strict += std::to_string(2001 + i / 4) + "," + std::to_string(i % 4 + 1) + "," + size + size +
              size + std::to_string(100 + i % 3) + "," + std::to_string(2 + i % 5) + "," +
              std::to_string(20 - 2 * level) + "\n";
  }
  const struct {
    std::string text, message;
  } cases[] = {
      {"", "in.csv:1: the file is empty, expected a line of column names"},
      {"# only a note\n\n", "in.csv:3: the file is empty, expected a line of column names"},
      {head + rows(19), "in.csv: 19 rows, expected from 20 to 2000 quarters"},
      {head + rows(2001), "in.csv: 2001 rows, expected from 20 to 2000 quarters"},
      {replaced(good, "unemp", "job\tless"),
       "in.csv:1: no column \"unemp\"; there are: year, quarter, realgdp, realcons, realinv, cpi, "
       "tbilrate, job?less"},
      {replaced(good, "cpi", "realgdp"), "in.csv:1: column \"realgdp\" occurs twice"},
      {replaced(good, "2001,2,", "2001,2,,"), "in.csv:3: 9 fields, expected 8 as in line 1"},
      {replaced(good, "2001,2,", "2001,"), "in.csv:3: 7 fields, expected 8 as in line 1"},
      {replaced(good, "2001,2,1008", "2001,2,"), "in.csv:3: realgdp is empty, expected a number"},
      {replaced(good, "2001,2,1008", "2001,2,\"10\n08\""),
       "in.csv:3: realgdp is \"10?08\", expected a number"},
      {replaced(good, "2001,2,1008", "2001,2,1008x"),
       "in.csv:3: realgdp is \"1008x\", expected a number"},
      {replaced(good, "2001,2,1008", "2001,2,\x1b[31m"),
       "in.csv:3: realgdp is \"?[31m\", expected a number"},
      {replaced(good, "2001,2,1008", "2001,2,nan"),
       "in.csv:3: realgdp is nan, expected a number between -1e12 and 1e12"},
      {replaced(good, "2001,2,1008", "2001,2,1e999"),
       "in.csv:3: realgdp is 1e999, expected a number between -1e12 and 1e12"},
      {replaced(good, "2001,2,1008", "2001,2,0"),
       "in.csv:3: realgdp is 0, expected a positive number"},
      {replaced(good, "2001,2,1008", "2001,2,\"1008\" x"),
       "in.csv:3: text after the quoted field \"1008\""},
      {replaced(good, "2001,3,", "2001,3,\""), "in.csv:4: a quoted field without end"},
      {replaced(good, "2001,2,", "2001.5,2,"),
       "in.csv:3: year is 2001.5, expected a whole number from 1 to 9999"},
      {replaced(good, "2001,2,", "2001,5,"), "in.csv:3: quarter is 5, expected 1, 2, 3 or 4"},
      {head + rows(30, 7), "in.csv:9: quarter 1 of 2003, expected quarter 4 of 2002 after line 8"},
      {flat("5", "5"), "Unemployment change is 0 throughout; there is nothing to analyse"},
      {flat("1e-300", "2e-300"),
       "Unemployment change, from -1e-300 to 1e-300, varies too little to be analysed"},
      {strict, "growth and the change of unemployment correlate by -1.000000: nothing to resample"},
  };
  for (const auto& c : cases) {
    write("in.csv", c.text);
    EXPECT_EQ(run("in.csv out.html"), 1) << c.message;
    EXPECT_EQ(err, c.message + "\n");
    EXPECT_EQ(out, "");
    EXPECT_EQ(files(), (std::set<std::string>{"in.csv", "out.txt", "err.txt"})) << c.message;
  }
}

// ---- Where it writes ---------------------------------------------------------------------

TEST_F(Demo, LinksStayLinksAndWhatIsNoFileStaysWhatItIs) {
  const auto is_page = [](const std::string& text) {
    return text.starts_with("<!DOCTYPE html>") && text.ends_with("</html>\n");
  };
  fs::create_directory(work / "far");
  write("far/old.html", "old"), write("second.html", "old");
  fs::create_symlink("far/old.html", work / "link.html");
  fs::create_symlink("far/new.html", work / "dangling.html");
  fs::create_hard_link(work / "second.html", work / "first.html");
  fs::permissions(work / "far/old.html", fs::perms::owner_read | fs::perms::owner_write);
  for (const auto& [name, file] : {std::pair{"link.html", "far/old.html"},
                                   {"dangling.html", "far/new.html"},
                                   {"first.html", "second.html"}}) {
    EXPECT_EQ(run(shipped + " " + name), 0) << err;
    EXPECT_TRUE(is_page(contents(work / file))) << name;
    EXPECT_EQ(fs::is_symlink(work / name), std::string(name) != "first.html");
  }
  EXPECT_EQ(fs::status(work / "far/old.html").permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
  ASSERT_EQ(std::system(("mkfifo " + (work / "pipe").string()).c_str()), 0);
  EXPECT_EQ(run(shipped + " pipe", "(timeout 60 cat pipe >piped.html &);"), 0) << err;
  EXPECT_TRUE(fs::is_fifo(work / "pipe"));
  for (int wait = 0; wait < 100 && !is_page(contents(work / "piped.html")); ++wait) usleep(20000);
  EXPECT_TRUE(is_page(contents(work / "piped.html")));
  EXPECT_EQ(files(),
            (std::set<std::string>{"dangling.html", "err.txt", "far", "first.html", "link.html",
                                   "out.txt", "pipe", "piped.html", "second.html"}));
}

TEST_F(Demo, SaysWhatIsWrongWithItsPathsAndArguments) {
  fs::create_directory(work / "place");
  for (const auto& [arguments, code, message] :
       {std::tuple{"absent.csv out.html", 1,
                   "absent.csv: cannot be opened: No such file or directory\n"},
        {". out.html", 1, ".: cannot be read: Is a directory\n"},
        {"DATA absent/out.html", 1,
         "absent/out.html: cannot be written: No such file or directory\n"},
        {"DATA place", 1, "place: cannot be written: Is a directory\n"},
        {"", 2, "usage: demo FILE.csv REPORT.html\n"},
        {"a b c", 2, "usage: demo FILE.csv REPORT.html\n"}}) {
    const std::string text = arguments;
    EXPECT_EQ(run(text.starts_with("DATA") ? shipped + text.substr(4) : text), code) << text;
    EXPECT_EQ(err, message);
  }
  EXPECT_EQ(files(), (std::set<std::string>{"out.txt", "err.txt", "place"}));
}

}  // namespace
