// Abstract streams: a source that counts, behind a ring, with callbacks that give less, more,
// nothing or fail.
#include "rua/stream_fixture.hpp"
#include "support/bits.hpp"

namespace {

// What the callback of a stream does and saw. One at a time.
struct Script {
  int next = 0;            // number to write next
  std::vector<int> gives;  // per call: the count to write; beyond: the room
  struct Call {
    int size, want, room, write;
  };
  std::vector<Call> calls;
  void* ring = nullptr;
  RuaStream* stream = nullptr;
  bool meddle = false;  // changes everything behind the pointers
};
Script* script;

template <class T>
int32_t refill(RuaStream* stream, int32_t* size, T* ring, int32_t* want, int32_t* room,
               int32_t* write) {
  Script& s = *script;
  const size_t call = s.calls.size();
  s.calls.push_back({*size, *want, *room, *write});
  EXPECT_EQ(ring, s.ring);
  EXPECT_EQ(stream, s.stream);
  const int gives = call < s.gives.size() ? s.gives[call] : *room;
  for (int i = 0; i < std::min(gives, *room); ++i) ring[(*write + i) % *size] = T(s.next++);
  if (s.meddle) *size = *want = *room = *write = -1000;
  return gives;
}

// The three forms behind one face. Real rings hold numbers from -2 to 6 as far as the stream
// knows; asked for -2 to 6 they come out as they are.
template <class T>
struct Form;
template <>
struct Form<uint32_t> {
  static int32_t make(RuaStream** s, int n, uint32_t* ring) {
    return __ruaiNewAbstractStream(s, n, ring, refill<uint32_t>);
  }
  static int32_t draw(RuaStream* s, int n, uint32_t* r) { return __ruaiBRngiAbstract(s, n, r); }
};
template <>
struct Form<double> {
  static int32_t make(RuaStream** s, int n, double* ring) {
    return __ruadNewAbstractStream(s, n, ring, -2, 6, refill<double>);
  }
  static int32_t draw(RuaStream* s, int n, double* r) {
    return __ruadBRngdAbstract(s, n, r, -2, 6);
  }
};
template <>
struct Form<float> {
  static int32_t make(RuaStream** s, int n, float* ring) {
    return __ruasNewAbstractStream(s, n, ring, -2, 6, refill<float>);
  }
  static int32_t draw(RuaStream* s, int n, float* r) { return __ruasBRngsAbstract(s, n, r, -2, 6); }
};

template <class T>
struct Source {
  Script act;
  std::vector<T> ring;
  Stream stream;
  explicit Source(int n) : ring(n) {
    EXPECT_EQ(Form<T>::make(stream.slot(), n, ring.data()), 0);
    act.ring = ring.data();
    act.stream = stream;
    script = &act;
  }
  int32_t* place() const { return stream.template state<int32_t>(); }  // size, read, used
  int32_t draw(int n, std::vector<T>& r) {
    r.assign(n + 1, T(99));
    const int32_t status = Form<T>::draw(stream, n, r.data());
    EXPECT_EQ(r[n], T(99));
    r.pop_back();
    return status;
  }
};

template <class T>
class Abstract : public RuaTest {};
using Types = testing::Types<uint32_t, double, float>;
TYPED_TEST_SUITE(Abstract, Types);
class AbstractStream : public RuaTest {};

TYPED_TEST(Abstract, AsksForWhatItNeeds) {
  Source<TypeParam> source(4);
  std::vector<TypeParam> r;
  ASSERT_EQ(source.draw(3, r), 0);
  EXPECT_EQ(r, (std::vector<TypeParam>{0, 1, 2}));
  ASSERT_EQ(source.act.calls.size(), 1u);
  EXPECT_EQ(source.act.calls[0].size, 4);
  EXPECT_EQ(source.act.calls[0].want, 3);
  EXPECT_EQ(source.act.calls[0].room, 4);
  EXPECT_EQ(source.act.calls[0].write, 0);
  // One is left: no call.
  ASSERT_EQ(source.draw(1, r), 0);
  EXPECT_EQ(r[0], TypeParam(3));
  EXPECT_EQ(source.act.calls.size(), 1u);
  // Larger than the ring, and the ring is not moved by what the callback does.
  source.act.meddle = true;
  ASSERT_EQ(source.draw(10, r), 0);
  for (int i = 0; i < 10; ++i) EXPECT_EQ(r[i], TypeParam(4 + i));
  EXPECT_EQ(source.act.calls[3].want, 2);
  EXPECT_EQ(source.act.calls.size(), 4u);
}

// Requests and refills of all small sizes: nothing is lost or doubled, the callback is asked
// for what a plain count of the ring says, and for no more often than needed.
TYPED_TEST(Abstract, LosesAndDoublesNothing) {
  for (int size : {1, 2, 3, 7})
    for (int give = 1; give <= size; ++give) {
      Source<TypeParam> source(size);
      std::vector<TypeParam> r;
      int expected = 0, write = 0, held = 0;
      uint32_t random = 12345;
      for (int round = 0; round < 60; ++round) {
        random = random * 1664525 + 1013904223;
        const int n = 1 + int(random >> 16) % (3 * size);
        // The model: counts only.
        std::vector<Script::Call> calls;
        std::vector<int> gives;
        int need = n - std::min(n, held);
        held -= n - need;
        while (need > 0) {
          calls.push_back({size, std::min(need, size), size, write});
          const int got = std::min(size, 1 + int(random >> 8) % give);
          gives.push_back(got);
          write = (write + got) % size;
          held = got - std::min(need, got);
          need -= std::min(need, got);
        }
        source.act.calls.clear();
        source.act.gives = gives;
        ASSERT_EQ(source.draw(n, r), 0);
        for (int i = 0; i < n; ++i) ASSERT_EQ(r[i], TypeParam(expected++)) << size << ' ' << give;
        ASSERT_EQ(source.act.calls.size(), calls.size());
        for (size_t i = 0; i < calls.size(); ++i) {
          ASSERT_EQ(source.act.calls[i].want, calls[i].want);
          ASSERT_EQ(source.act.calls[i].room, size);
          ASSERT_EQ(source.act.calls[i].write, calls[i].write);
        }
        ASSERT_EQ(source.place()[2], size - held);
        ASSERT_EQ(source.place()[1], (write - held + size) % size);
      }
    }
}

TYPED_TEST(Abstract, FailedRequestLeavesTheStreamAndWhatItDelivered) {
  const struct {
    std::vector<int> gives;
    int32_t status;
    int delivered;
  } cases[] = {
      {{0}, RUA_STATUS_ABSTRACT_NO_DATA, 2},          {{-1}, RUA_STATUS_ABSTRACT_CALLBACK, 2},
      {{INT32_MIN}, RUA_STATUS_ABSTRACT_CALLBACK, 2}, {{6}, RUA_STATUS_ABSTRACT_CALLBACK, 2},
      {{3, 0}, RUA_STATUS_ABSTRACT_NO_DATA, 5},       {{5, 1, -7}, RUA_STATUS_ABSTRACT_CALLBACK, 8},
  };
  for (const auto& c : cases) {
    Source<TypeParam> source(5);
    std::vector<TypeParam> r;
    ASSERT_EQ(source.draw(3, r), 0);  // the ring keeps 3 and 4
    source.act.calls.clear();
    source.act.gives = c.gives;
    const auto before = record(source.stream);
    ASSERT_EQ(source.draw(20, r), c.status);
    EXPECT_EQ(record(source.stream), before);
    for (int i = 0; i < 20; ++i) ASSERT_EQ(r[i], TypeParam(i < c.delivered ? 3 + i : 99)) << i;
  }
}

TYPED_TEST(Abstract, CountsBelow1LeaveTheStream) {
  Source<TypeParam> source(5);
  std::vector<TypeParam> r;
  ASSERT_EQ(source.draw(4, r), 0);
  const auto before = record(source.stream);
  TypeParam untouched(99);
  for (int n : {0, -1, -3, -5, INT32_MIN})
    EXPECT_EQ(Form<TypeParam>::draw(source.stream, n, &untouched), 0);
  EXPECT_EQ(record(source.stream), before);
  EXPECT_EQ(untouched, TypeParam(99));
  EXPECT_EQ(source.act.calls.size(), 1u);
}

TYPED_TEST(Abstract, NullRingComesFirst) {
  Source<TypeParam> source(3);
  std::vector<TypeParam> r;
  const int words = (properties(source.stream->brng).stateSize - 16) / 4;
  source.stream.template state<uint32_t>()[words - 2] = 0;
  EXPECT_EQ(source.draw(2, r), RUA_STATUS_NULL_POINTER);
  EXPECT_TRUE(source.act.calls.empty());
}

TEST_F(AbstractStream, RangesAreMapped) {
  double dring[] = {0, 0, 0};
  float sring[] = {0, 0, 0};
  Script act;
  script = &act;
  Stream d, s;
  ASSERT_EQ(__ruadNewAbstractStream(d.slot(), 3, dring, -0.1, 3, refill<double>), 0);
  act.ring = dring, act.stream = d;
  double rd[50];
  ASSERT_EQ(__ruadBRngdAbstract(d, 50, rd, 10, 11.7), 0);
  const double scale = (11.7 - 10) / (3 - -0.1);
  for (int i = 0; i < 50; ++i) EXPECT_EQ(bits(rd[i]), bits((i - -0.1) * scale + 10));
  ASSERT_EQ(__ruasNewAbstractStream(s.slot(), 3, sring, -0.1f, 3, refill<float>), 0);
  act.ring = sring, act.stream = s, act.next = 0;
  float rs[50];
  ASSERT_EQ(__ruasBRngsAbstract(s, 50, rs, 10, 11.7f), 0);
  const float fscale = (11.7f - 10.0f) / (3.0f - -0.1f);
  for (int i = 0; i < 50; ++i) EXPECT_EQ(bits(rs[i]), bits((float(i) - -0.1f) * fscale + 10.0f));
}

TEST_F(AbstractStream, ConstructorsAndOtherForms) {
  uint32_t ring[2];
  double dring[2];
  float sring[2];
  const double nan = std::numeric_limits<double>::quiet_NaN();
  RuaStream* const mark = reinterpret_cast<RuaStream*>(16);
  RuaStream* s = mark;
  const int32_t bad = RUA_STATUS_BAD_ARGUMENT;
  for (int n : {0, -1, INT32_MIN}) {
    EXPECT_EQ(__ruaiNewAbstractStream(&s, n, ring, refill<uint32_t>), bad);
    EXPECT_EQ(__ruadNewAbstractStream(&s, n, dring, 0, 1, refill<double>), bad);
    EXPECT_EQ(__ruasNewAbstractStream(&s, n, sring, 0, 1, refill<float>), bad);
  }
  EXPECT_EQ(__ruaiNewAbstractStream(&s, 2, nullptr, refill<uint32_t>), bad);
  EXPECT_EQ(__ruadNewAbstractStream(&s, 2, nullptr, 0, 1, refill<double>), bad);
  EXPECT_EQ(__ruasNewAbstractStream(&s, 2, nullptr, 0, 1, refill<float>), bad);
  EXPECT_EQ(__ruaiNewAbstractStream(&s, 2, ring, nullptr), bad);
  EXPECT_EQ(__ruadNewAbstractStream(&s, 2, dring, 0, 1, nullptr), bad);
  EXPECT_EQ(__ruasNewAbstractStream(&s, 2, sring, 0, 1, nullptr), bad);
  for (auto [a, b] : {std::pair{1.0, 1.0}, {2.0, 1.0}, {nan, 1.0}, {0.0, nan}}) {
    EXPECT_EQ(__ruadNewAbstractStream(&s, 2, dring, a, b, refill<double>), bad);
    EXPECT_EQ(__ruasNewAbstractStream(&s, 2, sring, float(a), float(b), refill<float>), bad);
  }
  EXPECT_EQ(s, mark);

  const int allocations = blocks::fail_each([&] {
    RuaStream* t = mark;
    const int32_t status = __ruadNewAbstractStream(&t, 2, dring, 0, 1, refill<double>);
    EXPECT_EQ(status, blocks::failed() ? RUA_STATUS_NO_MEMORY : 0);
    EXPECT_EQ(t == nullptr, blocks::failed());
    __ruaDeleteStream(&t);
  });
  EXPECT_EQ(allocations, 1);

  Stream streams[3];
  ASSERT_EQ(__ruaiNewAbstractStream(streams[0].slot(), 2, ring, refill<uint32_t>), 0);
  ASSERT_EQ(__ruadNewAbstractStream(streams[1].slot(), 2, dring, 0, 1, refill<double>), 0);
  ASSERT_EQ(__ruasNewAbstractStream(streams[2].slot(), 2, sring, 0, 1, refill<float>), 0);
  const int32_t wrong = RUA_STATUS_ABSTRACT_WRONG_FORM;
  for (int form = 0; form < 3; ++form) {
    RuaStream* t = streams[form];
    EXPECT_EQ(t->brng, 0xA00000 + form * 0x100000);
    const RuaBrngProperties row = properties(t->brng);
    const auto before = record(t);
    if (form != 0) {
      EXPECT_EQ(row.iGenerate(t, 1, nullptr), wrong) << form;
    }
    if (form != 1) {
      EXPECT_EQ(row.dGenerate(t, 1, nullptr, 0, 1), wrong) << form;
    }
    if (form != 2) {
      EXPECT_EQ(row.sGenerate(t, 1, nullptr, 0, 1), wrong) << form;
    }
    EXPECT_EQ(__ruaLeapfrogStream(t, 0, 2), RUA_STATUS_NO_LEAPFROG);
    EXPECT_EQ(__ruaSkipAheadStream(t, 1), RUA_STATUS_NO_SKIPAHEAD);
    EXPECT_EQ(row.initStream(3, t, 0, nullptr), RUA_STATUS_BAD_METHOD);
    EXPECT_EQ(record(t), before);
    // A copy reads the same ring.
    Stream copy;
    ASSERT_EQ(__ruaCopyStream(copy.slot(), t), 0);
    EXPECT_EQ(record(copy), before);
  }
}

}  // namespace
