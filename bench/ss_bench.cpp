// Statistics: cycles beside their bounds and the peers of the same run.
//
//   ss_bench [SECTION ...] [--record]
//   SECTION: helpers, moments, quantiles, groups, outliers, robust, missing
#include "ss_groups.hpp"
#include "ss_helpers.hpp"
#include "ss_missing.hpp"
#include "ss_moments.hpp"
#include "ss_outliers.hpp"
#include "ss_quantiles.hpp"
#include "ss_robust.hpp"

int main(int argc, char** argv) {
  Report report("ss", argc, argv);
  if (report.wants("helpers")) helpers::run(report);
  if (report.wants("moments")) moments::run(report);
  if (report.wants("outliers")) outliers::run(report);
  if (report.wants("quantiles")) quantiles::run(report);
  if (report.wants("groups")) groups::run(report);
  if (report.wants("missing")) missing::run(report);
  if (report.wants("robust")) robust::run(report);
}
