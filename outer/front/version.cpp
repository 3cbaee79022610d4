#include "ork/version.h"

#include "outer/export.hpp"

ORK_OUTER int ork_version(void) {
  return 10000 * ORK_VERSION_MAJOR + 100 * ORK_VERSION_MINOR + ORK_VERSION_PATCH;
}
ORK_OUTER const char* ork_version_string(void) { return ORK_VERSION_STRING; }
