// The demo as its user runs it: exit codes and messages, the page it writes, and its figures
// against a plain recomputation in extended precision.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <tuple>

#include "support/pch.hpp"

namespace {

namespace fs = std::filesystem;
using real = long double;
const std::string shipped = ORK_SOURCE_DIR "/examples/data/us_macro.csv";

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
  int run(const std::string& arguments) {
    const std::string command = "cd " + work.string() + " && " ORK_BUILD_DIR "/bin/demo " +
                                arguments + " >out.txt 2>err.txt";
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

struct Page {
  std::map<std::string, double> data;  // the value of each <data id>
  std::map<std::string, int> tags;     // how many of each element
};

// One tag with its attributes, all of them quoted.
struct Tag {
  std::string name;
  std::map<std::string, std::string> attributes;
  bool closes = false, empty = false;
};

Tag parse_tag(std::string text) {
  Tag tag;
  if (text.starts_with('/')) tag.closes = true, text.erase(0, 1);
  if (text.ends_with('/')) tag.empty = true, text.pop_back();
  size_t at = std::min(text.find(' '), text.size());
  tag.name = text.substr(0, at);
  while ((at = text.find_first_not_of(' ', at)) != std::string::npos) {
    const size_t equals = text.find("=\"", at);
    const size_t end = equals == std::string::npos ? equals : text.find('"', equals + 2);
    if (end == std::string::npos) {
      ADD_FAILURE() << "attribute without quotes: " << text;
      break;
    }
    tag.attributes[text.substr(at, equals - at)] = text.substr(equals + 2, end - equals - 2);
    at = end + 1;
  }
  return tag;
}

// Every pair of the path lies inside the drawing; "v5" is a tick.
void check_path(const std::string& d, double width, double height) {
  int points = 0;
  for (const char* p = d.c_str(); *p;) {
    char* end;
    if (*p == 'v') {
      strtod(p + 1, &end);
    } else {
      ASSERT_TRUE(*p == 'M' || *p == 'L') << d;
      const double x = strtod(p + 1, &end);
      ASSERT_NE(end, p + 1) << d;
      p = end;
      const double y = strtod(p, &end);
      ASSERT_TRUE(x >= 0 && x <= width && y >= 0 && y <= height) << x << " " << y << " in " << d;
      ++points;
    }
    ASSERT_NE(end, p) << d;
    p = end;
  }
  EXPECT_GT(points, 0) << d;
}

Page check_page(const std::string& html) {
  Page page;
  std::vector<std::string> open;
  double width = 0, height = 0;  // of the drawing at hand
  EXPECT_TRUE(html.starts_with("<!DOCTYPE html>\n"));
  for (const char* outside : {"http:", "https:", "src=", "<script", "url(", "@import", "<link"})
    EXPECT_EQ(html.find(outside), std::string::npos) << outside;
  size_t at = html.find('\n');
  while ((at = html.find_first_of("<&", at)) != std::string::npos) {
    if (html[at] == '&') {
      bool known = false;
      for (const char* entity : {"&amp;", "&lt;", "&gt;", "&quot;"})
        known |= html.compare(at, strlen(entity), entity) == 0;
      EXPECT_TRUE(known) << html.substr(at, 20);
      ++at;
      continue;
    }
    const size_t end = html.find('>', at);
    if (end == std::string::npos) {
      ADD_FAILURE() << "tag without end";
      return page;
    }
    const Tag tag = parse_tag(html.substr(at + 1, end - at - 1));
    at = end;
    if (tag.closes) {
      if (open.empty() || open.back() != tag.name) {
        ADD_FAILURE() << "</" << tag.name << "> closes "
                      << (open.empty() ? "nothing" : open.back());
        return page;
      }
      open.pop_back();
      continue;
    }
    ++page.tags[tag.name];
    if (!tag.empty) open.push_back(tag.name);
    const auto number = [&](const char* name) {
      const std::string text = tag.attributes.count(name) ? tag.attributes.at(name) : "missing";
      char* rest;
      const double value = strtod(text.c_str(), &rest);
      EXPECT_TRUE(*rest == 0 && std::isfinite(value)) << tag.name << " " << name << "=" << text;
      return value;
    };
    if (tag.name == "svg") {
      EXPECT_EQ(sscanf(tag.attributes.at("viewBox").c_str(), "0 0 %lf %lf", &width, &height), 2);
      EXPECT_FALSE(tag.attributes.at("aria-label").empty());
    } else if (tag.name == "path") {
      check_path(tag.attributes.at("d"), width, height);
    } else if (tag.name == "circle" || tag.name == "text") {
      const bool circle = tag.name == "circle";
      const double x = number(circle ? "cx" : "x"), y = number(circle ? "cy" : "y");
      EXPECT_TRUE(x >= 0 && x <= width && y >= 0 && y <= height)
          << tag.name << " " << x << " " << y;
    } else if (tag.name == "rect") {
      const double x = number("x"), y = number("y"), w = number("width"), h = number("height");
      EXPECT_TRUE(x >= 0 && w >= 0 && x + w <= width + 0.2) << x << " " << w;
      EXPECT_TRUE(y >= 0 && h >= 0 && y + h <= height + 0.2) << y << " " << h;
    } else if (tag.name == "data") {
      EXPECT_TRUE(page.data.emplace(tag.attributes.at("id"), number("value")).second)
          << tag.attributes.at("id") << " twice";
    }
  }
  EXPECT_TRUE(open.empty());
  return page;
}

// ---- Recomputation -----------------------------------------------------------------------

std::map<std::string, std::vector<real>> columns_of(const std::string& file) {
  std::ifstream stream(file);
  std::map<std::string, std::vector<real>> columns;
  std::vector<std::string> names;
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with("#")) continue;
    std::istringstream fields(line);
    size_t i = 0;
    const bool head = names.empty();
    for (std::string field; std::getline(fields, field, ',');)
      if (head)
        names.push_back(field);
      else
        columns[names[i++]].push_back(real(std::stod(field)));
  }
  return columns;
}

struct Reference {
  std::map<std::string, real> mean, deviation, skewness, kurtosis;
  std::map<std::string, std::vector<real>> series;

  void add(const std::string& key, const std::vector<real>& x) {
    const real n = real(x.size());
    real sum = 0, m2 = 0, m3 = 0, m4 = 0;
    for (real v : x) sum += v;
    for (real v : x) {
      const real d = v - sum / n;
      m2 += d * d, m3 += d * d * d, m4 += d * d * d * d;
    }
    const real variance = m2 / (n - 1);
    mean[key] = sum / n, deviation[key] = sqrtl(variance);
    skewness[key] = m3 / n / powl(variance, 1.5L),
    kurtosis[key] = m4 / n / (variance * variance) - 3;
    series[key] = x;
  }
  explicit Reference(const std::string& file) {
    const auto columns = columns_of(file);
    const auto change = [&](const char* name, auto f) {
      const auto& x = columns.at(name);
      std::vector<real> r;
      for (size_t i = 1; i < x.size(); ++i) r.push_back(f(x[i], x[i - 1]));
      return r;
    };
    const auto growth = [](real now, real before) { return 400 * logl(now / before); };
    const auto keep = [](real now, real) { return now; };
    const auto difference = [](real now, real before) {
      return real(double(now) - double(before));
    };
    add("gdp", change("realgdp", growth)), add("cons", change("realcons", growth));
    add("inv", change("realinv", growth)), add("infl", change("cpi", growth));
    add("bill", change("tbilrate", keep)), add("unemp", change("unemp", difference));
  }
};

real correlation(const std::vector<real>& x, const std::vector<real>& y) {
  const real n = real(x.size());
  real mx = 0, my = 0, xx = 0, yy = 0, xy = 0;
  for (size_t i = 0; i < x.size(); ++i) mx += x[i] / n, my += y[i] / n;
  for (size_t i = 0; i < x.size(); ++i)
    xx += (x[i] - mx) * (x[i] - mx), yy += (y[i] - my) * (y[i] - my),
        xy += (x[i] - mx) * (y[i] - my);
  return xy / sqrtl(xx * yy);
}

real quantile(std::vector<real> x, real order) {
  std::sort(x.begin(), x.end());
  const real place = order * real(x.size() - 1);
  const size_t below = std::min(size_t(place), x.size() - 2);
  return x[below] + (place - real(below)) * (x[below + 1] - x[below]);
}

// The resamples from the plain recurrence x <- 13^13 x mod 2^59: number t of worker w is
// number 4 t + w of the sequence, and scaled by 2^-59 n names a quarter.
std::vector<real> resampled(const std::vector<real>& x, const std::vector<real>& y) {
  constexpr uint64_t workers = 4, each = 5000;
  constexpr uint64_t modulus = uint64_t{1} << 59;
  const size_t n = x.size();
  uint64_t state = 1959;
  std::vector<std::vector<size_t>> index(workers);
  for (uint64_t k = 0; k < workers * each * n; ++k) {
    index[k % workers].push_back(std::min(size_t(real(state) * real(n) / real(modulus)), n - 1));
    state = state * 302875106592253u % modulus;
  }
  std::vector<real> result, rx(n), ry(n);
  for (const auto& mine : index)
    for (size_t start = 0; start < mine.size(); start += n) {
      for (size_t i = 0; i < n; ++i) rx[i] = x[mine[start + i]], ry[i] = y[mine[start + i]];
      result.push_back(correlation(rx, ry));
    }
  return result;
}

// Natural cubic spline by its second derivatives m: the tridiagonal system with m = 0 at the ends.
struct Spline {
  std::vector<real> x, y, m;

  Spline(std::vector<real> x_, std::vector<real> y_) : x(x_), y(y_), m(x_.size()) {
    const size_t n = x.size();
    std::vector<real> diagonal(n, 1), right(n, 0), upper(n, 0);
    for (size_t i = 1; i + 1 < n; ++i) {
      const real a = x[i] - x[i - 1], b = x[i + 1] - x[i];
      const real factor = a / diagonal[i - 1];
      diagonal[i] = 2 * (a + b) - factor * upper[i - 1];
      upper[i] = b;
      right[i] = 6 * ((y[i + 1] - y[i]) / b - (y[i] - y[i - 1]) / a) - factor * right[i - 1];
      if (i == 1) diagonal[i] = 2 * (a + b), right[i] = 6 * ((y[2] - y[1]) / b - (y[1] - y[0]) / a);
    }
    for (size_t i = n - 1; i-- > 1;) m[i] = (right[i] - upper[i] * m[i + 1]) / diagonal[i];
  }
  real operator()(real t) const {
    size_t i = 0;
    while (i + 2 < x.size() && t >= x[i + 1]) ++i;
    const real h = x[i + 1] - x[i], a = (x[i + 1] - t) / h, b = 1 - a;
    return a * y[i] + b * y[i + 1] +
           ((a * a * a - a) * m[i] + (b * b * b - b) * m[i + 1]) * h * h / 6;
  }
  // Simpson's rule, exact for cubics between breakpoints.
  real mean(real from, real to) const {
    real sum = 0;
    for (real a = from; a < to;) {
      const auto next = std::upper_bound(x.begin(), x.end(), a);
      const real b = next == x.end() ? to : std::min(to, *next);
      sum += (b - a) / 6 * ((*this)(a) + 4 * (*this)((a + b) / 2) + (*this)(b));
      a = b;
    }
    return sum / (to - from);
  }
};

TEST_F(Demo, ShippedDataGiveAWholePageWithTheRightFigures) {
  ASSERT_EQ(run(shipped + " report.html"), 0) << err;
  EXPECT_EQ(files(), (std::set<std::string>{"out.txt", "err.txt", "report.html"}));
  const std::string html = contents(work / "report.html");
  const Page page = check_page(html);
  EXPECT_EQ(page.tags.at("svg"), 10);                             // five figures in two widths
  EXPECT_NE(html.find("Public domain.</p>"), std::string::npos);  // the table's own note
  const auto expect = [&](const std::string& id, real exact, real tolerance = 1e-11L) {
    ASSERT_TRUE(page.data.count(id)) << id;
    EXPECT_NEAR(page.data.at(id), double(exact), double(tolerance * std::max(fabsl(exact), 1.0L)))
        << id;
  };

  const Reference reference(shipped);
  const real orders[] = {0, 0.05, 0.25, 0.5, 0.75, 0.95, 1};
  for (const auto& [key, x] : reference.series) {
    expect("mean-" + key, reference.mean.at(key));
    expect("deviation-" + key, reference.deviation.at(key));
    expect("skewness-" + key, reference.skewness.at(key));
    expect("kurtosis-" + key, reference.kurtosis.at(key));
    for (int k = 0; k < 7; ++k) expect("q" + std::to_string(k) + "-" + key, quantile(x, orders[k]));
    for (const auto& [other, y] : reference.series)
      if (other != key) expect("cor-" + key + "-" + other, correlation(x, y));
  }
  const auto &growth = reference.series.at("gdp"), &change = reference.series.at("unemp");
  expect("slope", fabsl(correlation(growth, change) * reference.deviation.at("unemp") /
                        reference.deviation.at("gdp")));

  const auto draws = resampled(growth, change);
  expect("boot-low", quantile(draws, 0.025L));
  expect("boot-high", quantile(draws, 0.975L));
  real mean = 0, squares = 0;
  for (real r : draws) mean += r / real(draws.size());
  for (real r : draws) squares += (r - mean) * (r - mean);
  expect("boot-deviation", sqrtl(squares / real(draws.size() - 1)));

  const auto columns = columns_of(shipped);
  const auto& unemployment = columns.at("unemp");
  std::vector<real> knots, means, time;
  for (size_t i = 0; i < unemployment.size(); ++i)
    time.push_back(columns.at("year")[i] + (columns.at("quarter")[i] - 0.5L) / 4);
  for (size_t i = 0, first = 0; i <= time.size(); ++i) {
    if (i < time.size() && floorl(time[i]) == floorl(time[first])) continue;
    real t = 0, u = 0;
    for (size_t k = first; k < i; ++k)
      t += time[k] / real(i - first), u += unemployment[k] / real(i - first);
    knots.push_back(t), means.push_back(u);
    first = i;
  }
  const Spline spline(knots, means);
  real residuals = 0;
  for (size_t i = 0; i < time.size(); ++i) residuals += powl(unemployment[i] - spline(time[i]), 2);
  expect("rms", sqrtl(residuals / real(time.size())));
  const std::pair<real, real> spans[] = {
      {1960, 1970}, {1970, 1980}, {1980, 1990}, {1990, 2000}, {2000, 2009.75L}};
  for (int i = 0; i < 5; ++i) {
    const auto [from, to] = spans[i];
    expect("span-curve-" + std::to_string(i), spline.mean(from, to));
    real sum = 0, count = 0;
    for (size_t k = 0; k < time.size(); ++k)
      if (time[k] > from && time[k] < to) sum += unemployment[k], ++count;
    expect("span-quarters-" + std::to_string(i), sum / count);
  }

  // Errors stay inside what the kernels declare.
  for (const auto& [id, value] : page.data) {
    const auto within = [&](const char* kind, double low, double high) {
      if (id.starts_with(kind)) {
        EXPECT_TRUE(value >= low && value <= high) << id << " " << value;
      }
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

TEST_F(Demo, TakesFewQuartersQuotesCarriageReturnsOnAnyThreads) {
  std::string text =
      "# <b>\"A\" & B</b>\n\"year\" , quarter,realgdp,realcons,realinv,cpi,tbilrate,unemp\n" +
      rows(20);
  for (size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2)
    text.insert(at, "\r");
  write("small.csv", text + "\r\n\r\n");
  Page pages[2];
  for (int i = 0; i < 2; ++i) {
    setenv("OMP_NUM_THREADS", i == 0 ? "1" : "3", 1);
    ASSERT_EQ(run("small.csv out.html"), 0) << err;
    const std::string html = contents(work / "out.html");
    pages[i] = check_page(html);
    EXPECT_NE(html.find("&lt;b&gt;&quot;A&quot; &amp; B&lt;/b&gt;"), std::string::npos);
  }
  unsetenv("OMP_NUM_THREADS");
  // Draws and errors have the same bits on any number of threads; sums have their own order.
  for (const auto& [id, value] : pages[0].data) {
    const double sum = std::fabs(value) * 1e-13 + 1e-15;
    EXPECT_NEAR(pages[1].data.at(id), value,
                id.starts_with("boot-low") || id.starts_with("ulp") ? 0 : sum)
        << id;
  }
}

TEST_F(Demo, SaysWhatIsWrongWithItsInputAndWritesNothing) {
  const auto replaced = [](std::string text, const std::string& what, const std::string& with) {
    const size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return text.replace(at, what.size(), with);
  };
  const std::string good = head + rows(24);
  const struct {
    std::string text, message;
  } cases[] = {
      {"", "in.csv:1: the file is empty, expected a line of column names"},
      {"# only a note\n\n", "in.csv:3: the file is empty, expected a line of column names"},
      {head, "in.csv: 0 rows, expected from 20 to 2000 quarters"},
      {head + rows(19), "in.csv: 19 rows, expected from 20 to 2000 quarters"},
      {head + rows(2001), "in.csv: 2001 rows, expected from 20 to 2000 quarters"},
      {replaced(good, "unemp", "jobless"),
       "in.csv:1: no column \"unemp\"; there are: year, quarter, realgdp, realcons, realinv, cpi, "
       "tbilrate, jobless"},
      {replaced(good, "cpi", "realgdp"), "in.csv:1: column \"realgdp\" occurs twice"},
      {replaced(good, "cpi", ""), "in.csv:1: a column without a name"},
      {replaced(good, "2001,2,", "2001,2,,"), "in.csv:3: 9 fields, expected 8 as in line 1"},
      {replaced(good, "2001,2,", "2001,"), "in.csv:3: 7 fields, expected 8 as in line 1"},
      {replaced(good, "2001,2,1008", "2001,2,"), "in.csv:3: realgdp is empty, expected a number"},
      {replaced(good, "2001,2,1008", "2001,2,n/a"),
       "in.csv:3: realgdp is \"n/a\", expected a number"},
      {replaced(good, "2001,2,1008", "2001,2,1008x"),
       "in.csv:3: realgdp is \"1008x\", expected a number"},
      {replaced(good, "2001,2,1008", "2001,2,\x1b[31m"),
       "in.csv:3: realgdp is \"?[31m\", expected a number"},
      {replaced(good, "2001,2,1008", "2001,2,nan"),
       "in.csv:3: realgdp is nan, expected a number between -1e12 and 1e12"},
      {replaced(good, "2001,2,1008", "2001,2,inf"),
       "in.csv:3: realgdp is inf, expected a number between -1e12 and 1e12"},
      {replaced(good, "2001,2,1008", "2001,2,1e999"),
       "in.csv:3: realgdp is 1e999, expected a number between -1e12 and 1e12"},
      {replaced(good, "2001,2,1008", "2001,2,0"),
       "in.csv:3: realgdp is 0, expected a positive number"},
      {replaced(good, "2001,2,1008", "2001,2,-3"),
       "in.csv:3: realgdp is -3, expected a positive number"},
      {replaced(good, "2001,2,", "2001.5,2,"),
       "in.csv:3: year is 2001.5, expected a whole number from 1 to 9999"},
      {replaced(good, "2001,2,", "2001,5,"), "in.csv:3: quarter is 5, expected 1, 2, 3 or 4"},
      {head + rows(30, 7), "in.csv:9: quarter 1 of 2003, expected quarter 4 of 2002 after line 8"},
  };
  for (const auto& c : cases) {
    write("in.csv", c.text);
    EXPECT_EQ(run("in.csv out.html"), 1) << c.message;
    EXPECT_EQ(err, c.message + "\n");
    EXPECT_EQ(out, "");
    EXPECT_EQ(files(), (std::set<std::string>{"in.csv", "out.txt", "err.txt"})) << c.message;
  }

  // A column that never moves, or so little that its variance is lost.
  for (const auto& [first, second, message] :
       {std::tuple{"5", "5", "Unemployment change is 0 throughout; there is nothing to analyse\n"},
        {"1e-300", "2e-300",
         "Unemployment change, from -1e-300 to 1e-300, varies too little to be analysed\n"}}) {
    std::string flat = head;
    std::istringstream lines(rows(24));
    for (std::string line; std::getline(lines, line);)
      flat += line.substr(0, line.rfind(',') + 1) + (flat.size() % 2 ? first : second) + "\n";
    write("in.csv", flat);
    EXPECT_EQ(run("in.csv out.html"), 1);
    EXPECT_EQ(err, message);
  }

  // Growth that determines unemployment's change: 2 points down for each doubling.
  std::string strict = head;
  for (int i = 0, level = 8; i < 24; ++i) {
    level += i % 3 == 0 ? 1 : i % 3 == 1 ? -2 : 1;
    const std::string size = std::to_string(1 << level) + ",";
    strict += std::to_string(2001 + i / 4) + "," + std::to_string(i % 4 + 1) + "," + size + size +
              size + std::to_string(100 + i % 3) + "," + std::to_string(2 + i % 5) + "," +
              std::to_string(20 - 2 * level) + "\n";
  }
  write("in.csv", strict);
  EXPECT_EQ(run("in.csv out.html"), 1);
  EXPECT_EQ(err,
            "growth and the change of unemployment correlate by -1.000000: nothing to resample\n");

  EXPECT_EQ(run("absent.csv out.html"), 1);
  EXPECT_EQ(err, "absent.csv: cannot be opened: No such file or directory\n");
  EXPECT_EQ(run(". out.html"), 1);
  EXPECT_EQ(err, ".: cannot be read: Is a directory\n");
  EXPECT_EQ(run(shipped + " absent/out.html"), 1);
  EXPECT_EQ(err, "absent/out.html: cannot be written: No such file or directory\n");
  EXPECT_EQ(run(""), 2);
  EXPECT_EQ(run("a b c"), 2);
  EXPECT_EQ(files(), (std::set<std::string>{"in.csv", "out.txt", "err.txt"}));
}

}  // namespace
