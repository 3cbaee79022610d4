#pragma once
// Marks what libork_outer.so exports.
#define ORK_OUTER extern "C" __attribute__((visibility("default")))
