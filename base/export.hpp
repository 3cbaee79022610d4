#pragma once
// Marks an exported entry: visible under its C name, tolerant of a caller whose stack is
// aligned to 4 bytes only.
#define ORK_EXPORT extern "C" __attribute__((visibility("default"), force_align_arg_pointer))
// Both precisions of an entry: entry(letter, type) is a macro.
#define ORK_TWINS(entry) entry(d, double) entry(s, float)
