#include "registry/distributions.hpp"

#define ORK_ROW(...) __VA_ARGS__

const std::vector<Distribution> distributions = {
#define DISTRIBUTION(type, element, name, methods, values, chunk, arguments, parameters, sample) \
  {#type[0],                                                                                     \
   #name,                                                                                        \
   sizeof(element),                                                                              \
   methods,                                                                                      \
   values,                                                                                       \
   chunk,                                                                                        \
   [](int32_t m, RuaStream* s, int32_t n, void* out, [[maybe_unused]] const Values& p) {         \
     auto* r = static_cast<element*>(out);                                                       \
     return _rua##type##Rng##name arguments;                                                     \
   },                                                                                            \
   {ORK_ROW parameters},                                                                         \
   {ORK_ROW sample}},
#include "registry/distributions.inc"
#undef DISTRIBUTION
};
