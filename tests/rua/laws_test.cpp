// The laws themselves, on samples that a test has time for; ork_laws takes large ones.
#include "laws/discrete.hpp"
#include "rua/stream_fixture.hpp"

namespace {

void expect_agreement(const std::string& name, const laws::Agreement& a) {
  EXPECT_FALSE(laws::bad(a)) << name << ": chi-square " << a.chi_square << ", distance "
                             << a.kolmogorov << ", tails " << a.low_tail << ' ' << a.high_tail;
  EXPECT_GE(a.cells, 2) << name;
}

template <class R>
void expect_laws(char type) {
  for (const laws::Law& law : laws::all())
    if (law.beyond.find(type) == std::string::npos)
      expect_agreement(law.name, laws::check<R>(law, 300000, 100, 777));
}
class Laws : public RuaTest {};
TEST_F(Laws, OfDoubleNumbersHold) { expect_laws<double>('d'); }
TEST_F(Laws, OfSingleNumbersHold) { expect_laws<float>('s'); }
TEST_F(Laws, OfIntegersHold) {
  for (const laws::DiscreteLaw& law : laws::all_discrete())
    if (!law.coarse) expect_agreement(law.name, laws::check(law, 300000, 777));
}

}  // namespace
