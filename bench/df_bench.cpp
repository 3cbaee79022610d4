// Cell search, interpolation and integration: time-stamp cycles per site or interval on one
// thread, beside GSL in the same run.
//
//   df_bench [--record]
#include <dlfcn.h>

#include <random>

#include "ork/df.h"
#include "support.hpp"

namespace {

constexpr int nx = 1000, sites = 10000;

struct Data {
  std::vector<double> x, y, sorted, random;

  Data() : x(nx), y(nx), sorted(sites) {
    std::mt19937 engine(1);
    std::uniform_real_distribution<double> unit;
    for (int i = 0; i < nx; ++i) x[i] = i + 0.6 * unit(engine), y[i] = unit(engine);
    for (double& s : sorted) s = x[0] + unit(engine) * (x[nx - 1] - x[0]);
    random = sorted;
    std::sort(sorted.begin(), sorted.end());
  }
};

// GSL's cubic spline, 0 where it is not installed.
struct Peer {
  double sorted = 0, random = 0, derivatives = 0, integral = 0;

  void measure(Report& report, const Data& d) {
    void* blas = dlopen("libgslcblas.so.0", RTLD_NOW | RTLD_GLOBAL);
    void* gsl = blas != nullptr ? dlopen("libgsl.so.27", RTLD_NOW) : nullptr;
    if (gsl == nullptr) return report.line("GSL for i386 is not installed: no peer");
    using At = double (*)(const void*, const double*, const double*, double, void*);
    using Over = double (*)(const void*, const double*, const double*, double, double, void*);
    const auto find = [gsl]<class F>(F& f, const char* name) {
      f = reinterpret_cast<F>(dlsym(gsl, name));
    };
    void* (*alloc)(const void*, size_t);
    void* (*accel_alloc)();
    int (*init)(void*, const double*, const double*, size_t);
    At value, first, second;
    Over integral_of;
    find(alloc, "gsl_interp_alloc"), find(accel_alloc, "gsl_interp_accel_alloc"),
        find(init, "gsl_interp_init");
    find(value, "gsl_interp_eval"), find(first, "gsl_interp_eval_deriv"),
        find(second, "gsl_interp_eval_deriv2");
    find(integral_of, "gsl_interp_eval_integ");
    void* spline = alloc(*static_cast<void* const*>(dlsym(gsl, "gsl_interp_cspline")), nx);
    void* accel = accel_alloc();
    const double *x = d.x.data(), *y = d.y.data();
    init(spline, x, y, nx);
    std::vector<double> out(3 * sites);
    const auto cycles = [&](auto each, const std::vector<double>& site) {
      return time_calls(
                 [&] {
                   for (int j = 0; j < sites - 1; ++j) each(&site[j], &out[3 * j]);
                 },
                 100)
                 .least /
             (sites - 1);
    };
    const auto one = [&](const double* s, double* r) { *r = value(spline, x, y, *s, accel); };
    sorted = cycles(one, d.sorted);
    random = cycles(one, d.random);
    derivatives = cycles(
        [&](const double* s, double* r) {
          r[0] = value(spline, x, y, *s, accel), r[1] = first(spline, x, y, *s, accel);
          r[2] = second(spline, x, y, *s, accel);
        },
        d.sorted);
    integral = cycles(
        [&](const double* s, double* r) { *r = integral_of(spline, x, y, s[0], s[1], accel); },
        d.sorted);
  }
};

template <class T>
struct Api;
template <>
struct Api<double> {
  static constexpr char letter = 'd';
  static constexpr auto create = ork_df_kernel_dNewTask1D;
  static constexpr auto spline = ork_df_kernel_dEditPPSpline1D;
  static constexpr auto search = ork_df_kernel_dDFSearch1D;
  static constexpr auto interpolate = ork_df_kernel_dDFInterpolate1D;
  static constexpr auto integrate = ork_df_kernel_dDFIntegrate1D;
};
template <>
struct Api<float> {
  static constexpr char letter = 's';
  static constexpr auto create = ork_df_kernel_sNewTask1D;
  static constexpr auto spline = ork_df_kernel_sEditPPSpline1D;
  static constexpr auto search = ork_df_kernel_sDFSearch1D;
  static constexpr auto interpolate = ork_df_kernel_sDFInterpolate1D;
  static constexpr auto integrate = ork_df_kernel_sDFIntegrate1D;
};

template <class T>
class Bench {
 public:
  Bench(Report& report, const Data& d, const Peer& peer)
      : report_(report),
        peer_(peer),
        x_(d.x.begin(), d.x.end()),
        sorted_(d.sorted.begin(), d.sorted.end()),
        random_(d.random.begin(), d.random.end()),
        y_(nx * many),
        coeffs_(size_t(4) * nx * many, T(0.5)),
        result_(size_t(3) * sites * many),
        cell_(sites) {
    ends_[0] = 0, ends_[1] = nx - 1;
  }

  void run() {
    const double hard = sizeof(T) == 8;  // the bounds are for double
    struct Row {
      const char* name;
      int64_t xhint;
      bool sorted;
      int order, type, ny, flags;
      int64_t layout;
      double bound, peer;
    };
    const Row rows[] = {
        {"cubic, sorted sites", 1, true, 4, 0, 1, 1, 0, 9, peer_.sorted},
        {"cubic, random sites", 1, false, 4, 0, 1, 1, 0, 40, peer_.random},
        {"cubic, random, uniform grid", 4, false, 4, 0, 1, 1, 0, 9, peer_.random},
        {"cubic, random, quasi-uniform", 2, false, 4, 0, 1, 1, 0, 0, peer_.random},
        {"cubic, 2 derivatives, by order", 1, true, 4, 0, 1, 3, 0, 14, peer_.derivatives},
        {"cubic, 2 derivatives, by site", 1, true, 4, 0, 1, 3, 16, 14, peer_.derivatives},
        {"cubic, sorted, 16 functions", 1, true, 4, 0, many, 1, 0, 0, 0},
        {"linear, sorted", 1, true, 2, 0, 1, 1, 0, 0, 0},
        {"quadratic, sorted", 1, true, 3, 0, 1, 1, 0, 0, 0},
        {"Subbotin, sorted", 1, true, 3, 1, 1, 1, 0, 0, 0},
        {"order 6, sorted", 1, true, 6, 0, 1, 1, 0, 0, 0},
        {"step, sorted", 1, true, 0, 7, 1, 1, 0, 0, 0},
    };
    const int flags[] = {1, 1, 1};
    for (const Row& row : rows) {
      ork_df_task* task = make(row.xhint, row.ny, row.order, row.type);
      const T* site = row.sorted ? sorted_.data() : random_.data();
      int code = 0;
      const double cycles =
          time_calls([&] {
            code |= Api<T>::interpolate(task, 1, 0, sites, site, row.sorted ? 64 : 0, row.flags,
                                        flags, nullptr, result_.data(), row.layout, nullptr,
                                        nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                        nullptr, nullptr, &ork_threader_serial);
          }).least /
          sites / row.ny;
      line(row.name, cycles, hard * row.bound, hard * row.peer, code);
      ork_df_kernel_DeleteTask(&task);
    }
    for (const Row& row :
         {Row{"integral, consecutive limits", 1, true, 4, 0, 1, 0, 0, 25, peer_.integral},
          Row{"integral, uniform grid", 4, true, 4, 0, 1, 0, 0, 25, peer_.integral},
          Row{"integral, 16 functions", 1, true, 4, 0, many, 0, 16, 0, 0}}) {
      ork_df_task* task = make(row.xhint, row.ny, row.order, row.type);
      int code = 0;
      const double cycles =
          time_calls([&] {
            code |= Api<T>::integrate(task, 0, sites - 1, sorted_.data(), 64, sorted_.data() + 1,
                                      64, nullptr, nullptr, result_.data(), row.layout, nullptr,
                                      nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                      &ork_threader_serial);
          }).least /
          (sites - 1) / row.ny;
      line(row.name, cycles, hard * row.bound, hard * row.peer, code);
      ork_df_kernel_DeleteTask(&task);
    }
    for (const Row& row : {Row{"search, uniform", 4, false, 2, 0, 1, 0, 0, 0, 0},
                           Row{"search, quasi-uniform", 2, false, 2, 0, 1, 0, 0, 0, 0},
                           Row{"search, sorted", 1, true, 2, 0, 1, 0, 0, 0, 0},
                           Row{"search, hybrid", 1, false, 2, 0, 1, 0, 0, 0, 0}}) {
      ork_df_task* task = make(row.xhint, 1, 2, 0);
      int code = 0;
      const double cycles =
          time_calls([&] {
            code |= Api<T>::search(task, 0, sites, row.sorted ? sorted_.data() : random_.data(),
                                   row.sorted ? 64 : 0, nullptr, cell_.data(), nullptr, nullptr,
                                   &ork_threader_serial);
          }).least /
          sites;
      line(row.name, cycles, 0, 0, code);
      ork_df_kernel_DeleteTask(&task);
    }
  }

 private:
  static constexpr int many = 16;

  ork_df_task* make(int64_t xhint, int ny, int order, int type) {
    ork_df_task* task = nullptr;
    coeffs_.resize(std::max(coeffs_.size(), size_t(order) * nx * ny), T(0.5));
    Api<T>::create(&task, nx, xhint == 4 ? ends_ : x_.data(), xhint, ny, y_.data(), 0, 0);
    Api<T>::spline(task, order, type, 0, nullptr, 0, nullptr, coeffs_.data(), 0);
    return task;
  }
  void line(const char* name, double cycles, double bound, double peer, int code) {
    if (code != 0) return report_.line(format("%s: code %d", name, code));
    std::string line = format("%c %-32s %8.2f", Api<T>::letter, name, cycles);
    line +=
        bound > 0 ? format(" %6.0f %-4s", bound, cycles <= bound ? "met" : "MISS") : "            ";
    if (peer > 0) line += format(" %8.2f %6.2f", peer, peer / cycles);
    report_.line(line);
  }

  Report& report_;
  const Peer& peer_;
  std::vector<T> x_, sorted_, random_, y_, coeffs_, result_;
  std::vector<int> cell_;
  T ends_[2];
};

}  // namespace

int main(int argc, char** argv) {
  Report report("df", argc, argv);
  const Data data;
  Peer peer;
  peer.measure(report, data);
  report.line("# " + std::to_string(nx) + " breakpoints, " + std::to_string(sites) +
              " sites; cycles per function and site, one thread");
  report.line("  request                            cycles  bound           GSL  ratio");
  Bench<double>(report, data, peer).run();
  Bench<float>(report, data, peer).run();
}
