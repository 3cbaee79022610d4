#pragma once
// Bootstrap of the correlation between growth and the change of unemployment: how much could it
// differ had history drawn its quarters anew?
#include <cstdint>
#include <string>
#include <vector>

#include "analysis.hpp"
#include "progress.hpp"

namespace demo {

struct Bootstrap {
  int workers, threads;
  std::vector<double> draws;                     // replicate k of worker w at k * workers + w
  double mean, deviation, low, high;             // of the draws; 2.5 % and 97.5 % quantiles
  std::vector<double> theory_x, theory_y;        // density by Fisher's transformation
  int64_t leapfrog_compared, restored_compared;  // numbers found equal, bit by bit
  int image_bytes;                               // of the saved stream
};

// Workers share one sequence of MCG59 by leapfrogging. Half-way, the stream of the last one is
// saved to `image_file` (removed again), and it goes on with the restored stream.
Bootstrap bootstrap(const Quarters& quarters, const Analysis& analysis,
                    const std::string& image_file, Progress& progress);

}  // namespace demo
