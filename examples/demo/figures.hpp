#pragma once
// The plots of the report. Each comes twice, for wide and for narrow windows; the style sheet
// shows the one that fits.
#include <string>
#include <vector>

#include "analysis.hpp"
#include "bootstrap.hpp"
#include "curve.hpp"
#include "measure.hpp"
#include "robust.hpp"
#include "series.hpp"

namespace demo {

std::string unemployment_figure(const Quarters&, const Curve&);
std::string scatter_figure(const Quarters&, const Analysis&);
std::string robust_figure(const Quarters&, const Robust&);
std::string bootstrap_figure(const Bootstrap&, double observed);
std::string quantile_figure(const Quarters&, const Analysis&);
std::string speed_figure(const std::vector<Measured>&);

}  // namespace demo
