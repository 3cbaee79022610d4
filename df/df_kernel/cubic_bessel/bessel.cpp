// Bessel cubic spline: the slope at a breakpoint is that of the parabola through it and its
// two neighbours.
#include "cubic_local/local.hpp"

namespace ork::df {

// Slope of that parabola, given the cells on both sides.
template <class V>
V parabola_slope(V h_before, V t_before, V h_after, V t_after) {
  return (h_after * t_before + h_before * t_after) / (h_before + h_after);
}

struct Bessel {
  static constexpr int run = 8, reach = 1, least_nx = 4;
  static constexpr bool may_be_unset = false;

  static int check(const Task*) { return ORK_DF_OK; }
  template <class T, class Grid>
  static void slopes(const Task*, const Window<T>& s, int first, int last) {
    sweep<T>(first, last + 1, [&]<class V>(int i) {
      const V before = get<V>(s.t + i - 1), after = get<V>(s.t + i);
      if constexpr (Grid::uniform)
        put(s.d + i, (before + after) * T(0.5));
      else
        put(s.d + i, parabola_slope(get<V>(s.h + i - 1), before, get<V>(s.h + i), after));
    });
  }
  template <class T>
  static T closed(const Task*, const End<T>& left, const End<T>& right) {
    return parabola_slope(right.h0, right.t0, left.h0, left.t0);
  }
};

template <class T>
int construct_bessel(const Task* task, int64_t, const ork_threader* threader) {
  return construct_local<T, Bessel>(task, threader);
}

}  // namespace ork::df

ORK_CONSTRUCTION(BesselCubic, construct_bessel)
