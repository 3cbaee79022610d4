// The laws themselves, on samples that a test has time for; ork_laws takes large ones.
#include "laws/laws.hpp"

#include "rua/stream_fixture.hpp"

namespace {

template <class R>
void expect_laws(char type) {
  for (const laws::Law& law : laws::all()) {
    if (law.beyond.find(type) != std::string::npos) continue;
    const laws::Agreement a = laws::check<R>(law, 300000, 100, 777);
    EXPECT_FALSE(laws::bad(a)) << law.name << ": chi-square " << a.chi_square << ", distance "
                               << a.kolmogorov << ", tails " << a.low_tail << ' ' << a.high_tail;
    EXPECT_GE(a.cells, 2) << law.name;
  }
}
class Laws : public RuaTest {};
TEST_F(Laws, OfDoubleNumbersHold) { expect_laws<double>('d'); }
TEST_F(Laws, OfSingleNumbersHold) { expect_laws<float>('s'); }

}  // namespace
