// Parsed once for each test program: the headers that nearly every test needs.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <vector>
