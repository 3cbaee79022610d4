// Akima cubic spline: the slope at a breakpoint is the mean of the divided differences on its
// two sides, each weighted by how much the other side bends. (H. Akima, A new method of
// interpolation and smooth curve fitting based on local procedures, J. ACM 17, 1970.)
#include "cubic_local/local.hpp"

namespace ork::df {

// Without any bend, the plain mean.
template <class T, class V>
V weighted_slope(V t_before, V w_before, V t_after, V w_after) {
  const V s = w_after + w_before;
  return T(1e-10) > s ? (t_before + t_after) * T(0.5)
                      : (w_after / s) * t_before + (w_before / s) * t_after;
}
template <class T, class V>
V bend(V t_before, V t_after) {
  const V w = t_after - t_before;
  return w < T(0) ? -w : w;
}

struct Akima {
  static constexpr int run = 8, reach = 2, least_nx = 5;
  static constexpr bool may_be_unset = true;

  static int check(const Task*) { return ORK_DF_OK; }

  // The weights at the ends of the window repeat their neighbours. They are read only where
  // the window ends with the spline.
  template <class T, class Grid>
  static void slopes(const Task*, const Window<T>& s, int first, int last) {
    sweep<T>(1, s.cells,
             [&]<class V>(int i) { put(s.w + i, bend<T>(get<V>(s.t + i - 1), get<V>(s.t + i))); });
    s.w[0] = s.w[1], s.w[s.cells] = s.w[s.cells - 1];
    sweep<T>(first, last + 1, [&]<class V>(int i) {
      put(s.d + i, weighted_slope<T>(get<V>(s.t + i - 1), get<V>(s.w + i - 1), get<V>(s.t + i),
                                     get<V>(s.w + i + 1)));
    });
  }
  template <class T>
  static T closed(const Task*, const End<T>& left, const End<T>& right) {
    return weighted_slope<T>(right.t0, bend<T>(right.t1, right.t0), left.t0,
                             bend<T>(left.t0, left.t1));
  }
};

template <class T>
int construct_akima(const Task* task, int64_t, const ork_threader* threader) {
  return construct_local<T, Akima>(task, threader);
}

}  // namespace ork::df

ORK_CONSTRUCTION(AkimaCubic, construct_akima)
