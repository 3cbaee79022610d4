#pragma once
// Calls with the statuses they must give.
#include <functional>

#include "support/pch.hpp"

struct StatusRow {
  const char* what;
  int status;
  std::function<int()> call;
};
template <size_t count>
void expect_statuses(const StatusRow (&rows)[count]) {
  for (const StatusRow& row : rows) EXPECT_EQ(row.call(), row.status) << row.what;
}
