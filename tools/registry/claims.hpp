#pragma once
// The claims.tsv beside each function's kernels: declared error bounds, and where arguments are
// taken from. Lines, fields separated by blanks, # begins a comment:
//
//   claim dExp_W7HA 0.55 ulp         full error |got - exact| / ulp(exact); or 2^-26 rel
//                                    Of a complex result: each part; or relative to the modulus
//   claim zMul_V8HA 1 modulus        of a complex result: |got - exact| / ulp(|exact|)
//   range dExp lin -745 710          arguments uniform in the interval; two more numbers give
//   range dExp log 1e-320 700        the second input's; log: uniform in the exponent, both signs
//   near  dExp 0x40862E42FEFA39EF 0  64 neighbours on each side of these, both signs
//   omit  dPow3o2 1e205 4e205        no arguments from this interval: what is due there is no
//                                    rounded value; the reason stands in a comment beside it
//   bench dExp -10 10                the benchmark's interval; two more numbers likewise
#include <map>
#include <string>
#include <vector>

struct Claim {
  double bound;
  bool relative;  // to the exact value rather than in ulp
};

struct Range {
  bool log;
  double low, high, low2, high2;
};

struct Claims {
  std::map<std::string, Claim> bounds;               // by kernel, "dExp_W7HA"
  std::map<std::string, std::vector<Range>> ranges;  // by function, "dExp"
  std::map<std::string, std::vector<double>> near;
  std::map<std::string, std::vector<Range>> omitted;
  std::map<std::string, Range> bench;
};

// Reads zem/zem_core/*/*/claims.tsv below the project's root. A malformed line ends the program
// with a message.
Claims read_claims(const std::string& root);
