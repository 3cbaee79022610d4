// The shared tables of the extended functions.
#include "ork/zem_extended.h"

#define ORK_TABLE extern "C" __attribute__((visibility("default"))) constexpr

ORK_TABLE float ork_zem_core_rcp_table_256[256] = {
#include "heap/real/reciprocals.inc"
};
ORK_TABLE double ork_zem_core_double_rcp_table_256[256] = {
#include "heap/real/reciprocals_d.inc"
};
ORK_TABLE double ork_zem_core_logl_table_256[256][2] = {
#include "heap/real/logarithms.inc"
};
ORK_TABLE double ork_zem_core_log_table_256[256][2] = {
#include "heap/real/logarithms_small_first.inc"
};
ORK_TABLE double ork_zem_core_expl_table_256[257][2] = {
#include "heap/real/powers.inc"
};
ORK_TABLE double ork_zem_core_atanl_table_128[514][2] = {
#include "heap/real/arcs.inc"
};
