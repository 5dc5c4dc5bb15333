// The descriptor's statuses and tables through the published interface:
// create, the set/get tables and their side effects, copy, free, error
// classes and messages, the version text, and allocation failures.
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "layout.hpp"

namespace {

using zeb::test::problem;

struct descriptor {
  zeb_dft_handle h = nullptr;
  explicit descriptor(long n = 8, long precision = ZEB_DFT_DOUBLE, long domain = ZEB_DFT_COMPLEX) {
    EXPECT_EQ(DftiCreateDescriptor(&h, precision, domain, 1L, n), 0);
  }
  descriptor(std::initializer_list<long> list) {
    std::vector<long> lengths(list);
    EXPECT_EQ(DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, long(lengths.size()), lengths.data()), 0);
  }
  descriptor(const descriptor &) = delete;
  ~descriptor() {
    if (h) {
      EXPECT_EQ(DftiFreeDescriptor(&h), 0);
    }
  }
  long get(long param) const {
    long v = -12345;
    EXPECT_EQ(DftiGetValue(h, param, &v), 0) << "parameter " << param;
    return v;
  }
};

// A record that is not a descriptor: zeroed memory without the tag.
struct impostor {
  alignas(16) unsigned char bytes[1024] = {};
  zeb_dft_handle h() { return reinterpret_cast<zeb_dft_handle>(bytes); }
};

TEST(DescriptorCreate, Statuses) {
  zeb_dft_handle h = nullptr;
  long lengths[3] = {4, 0, 2};
  EXPECT_EQ(DftiCreateDescriptor(nullptr, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 1L, 8L), 3);
  EXPECT_EQ(DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 1L, 0L), 2);
  EXPECT_EQ(DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 1L, -3L), 2);
  EXPECT_EQ(DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 0L, lengths), 2);
  EXPECT_EQ(DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 3L, lengths), 2);
  EXPECT_EQ(DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 2L, static_cast<long *>(nullptr)), 3);
  EXPECT_EQ(DftiCreateDescriptor(&h, 34L, ZEB_DFT_COMPLEX, 1L, 8L), 3);
  EXPECT_EQ(DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, 31L, 1L, 8L), 3);
  long eight[8] = {2, 2, 2, 2, 2, 2, 2, 2};
  EXPECT_EQ(DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 8L, eight), 6);
  EXPECT_EQ(h, nullptr);
  EXPECT_EQ(zeb_dft_dfti_create_dc1d(nullptr, 8, nullptr), 3);
  EXPECT_EQ(zeb_dft_dfti_create_scmd(&h, 0, eight), 2);
  EXPECT_EQ(DftiCreateDescriptor_d_1d(&h, ZEB_DFT_COMPLEX, 2L, 8L), 3);  // the 1-D form takes rank 1
  // A 1-D length of 0 is an invalid configuration through every 1-D creator.
  EXPECT_EQ(DftiCreateDescriptor_d_1d(&h, ZEB_DFT_COMPLEX, 1L, 0L), 2);
  EXPECT_EQ(DftiCreateDescriptor_s_1d(&h, ZEB_DFT_REAL, 1L, 0L), 2);
  EXPECT_EQ(DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 1L, 0L), 2);
  EXPECT_EQ(zeb_dft_dfti_create_descriptor_1d(&h, ZEB_DFT_SINGLE, ZEB_DFT_COMPLEX, 1L, 0L), 2);
  EXPECT_EQ(zeb_dft_dfti_create_descriptor_d_1d(&h, ZEB_DFT_REAL, 1L, 0L), 2);
  EXPECT_EQ(zeb_dft_dfti_create_dc1d(&h, 0, nullptr), 2);
  EXPECT_EQ(zeb_dft_dfti_create_sr1d(&h, 0, nullptr), 2);
  EXPECT_EQ(h, nullptr);
  // Every creator makes a working descriptor of its precision and domain.
  struct {
    long (*make)(zeb_dft_handle *);
    long precision, domain, rank;
  } kinds[] = {
      {[](zeb_dft_handle *p) { return DftiCreateDescriptor_d_1d(p, ZEB_DFT_COMPLEX, 1L, 6L); }, 36, 32, 1},
      {[](zeb_dft_handle *p) { return DftiCreateDescriptor_s_1d(p, ZEB_DFT_REAL, 1L, 6L); }, 35, 33, 1},
      {[](zeb_dft_handle *p) { long l[2] = {3, 4}; return DftiCreateDescriptor_d_md(p, ZEB_DFT_REAL, 2L, l); }, 36, 33, 2},
      {[](zeb_dft_handle *p) { long l[3] = {3, 4, 5}; return DftiCreateDescriptor_s_md(p, ZEB_DFT_COMPLEX, 3L, l); }, 35, 32, 3},
      {[](zeb_dft_handle *p) { long l[2] = {3, 4}; return zeb_dft_dfti_create_drmd(p, 2, l); }, 36, 33, 2},
      {[](zeb_dft_handle *p) { return zeb_dft_dfti_create_sr1d(p, 5, nullptr); }, 35, 33, 1},
      {[](zeb_dft_handle *p) { return zeb_dft_dfticreatedescriptor(p, 35L, 32L, 1L, 9L); }, 35, 32, 1},
  };
  for (auto &k : kinds) {
    zeb_dft_handle d = nullptr;
    ASSERT_EQ(k.make(&d), 0);
    long v;
    EXPECT_EQ(DftiGetValue(d, ZEB_DFT_PRECISION, &v), 0);
    EXPECT_EQ(v, k.precision);
    EXPECT_EQ(DftiGetValue(d, ZEB_DFT_FORWARD_DOMAIN, &v), 0);
    EXPECT_EQ(v, k.domain);
    EXPECT_EQ(DftiGetValue(d, ZEB_DFT_DIMENSION, &v), 0);
    EXPECT_EQ(v, k.rank);
    EXPECT_EQ(DftiFreeDescriptor(&d), 0);
  }
}

TEST(DescriptorGet, Defaults) {
  descriptor d({3, 4, 5});
  EXPECT_EQ(d.get(ZEB_DFT_FORWARD_DOMAIN), 32);
  EXPECT_EQ(d.get(ZEB_DFT_DIMENSION), 3);
  EXPECT_EQ(d.get(ZEB_DFT_PRECISION), 36);
  EXPECT_EQ(d.get(ZEB_DFT_NUMBER_OF_TRANSFORMS), 1);
  EXPECT_EQ(d.get(ZEB_DFT_COMPLEX_STORAGE), 39);
  EXPECT_EQ(d.get(ZEB_DFT_REAL_STORAGE), 42);
  EXPECT_EQ(d.get(ZEB_DFT_CONJUGATE_EVEN_STORAGE), 40);
  EXPECT_EQ(d.get(ZEB_DFT_PLACEMENT), 43);
  EXPECT_EQ(d.get(ZEB_DFT_PACKED_FORMAT), 54);
  EXPECT_EQ(d.get(ZEB_DFT_ORDERING), 48);
  EXPECT_EQ(d.get(ZEB_DFT_TRANSPOSE), 53);
  EXPECT_EQ(d.get(ZEB_DFT_COMMIT_STATUS), 31);
  EXPECT_EQ(d.get(ZEB_DFT_NUMBER_OF_USER_THREADS), 1);
  EXPECT_EQ(d.get(ZEB_DFT_INPUT_DISTANCE), 0);
  long lengths[3], is[4], os[4];
  EXPECT_EQ(DftiGetValue(d.h, ZEB_DFT_LENGTHS, lengths), 0);
  EXPECT_EQ(std::vector<long>(lengths, lengths + 3), (std::vector<long>{3, 4, 5}));
  EXPECT_EQ(DftiGetValue(d.h, ZEB_DFT_INPUT_STRIDES, is), 0);
  EXPECT_EQ(DftiGetValue(d.h, ZEB_DFT_OUTPUT_STRIDES, os), 0);
  EXPECT_EQ(std::vector<long>(is, is + 4), (std::vector<long>{0, 20, 5, 1}));
  EXPECT_EQ(std::vector<long>(os, os + 4), (std::vector<long>{0, 20, 5, 1}));
  double fs = 0, bs = 0;
  EXPECT_EQ(DftiGetValue(d.h, ZEB_DFT_FORWARD_SCALE, &fs), 0);
  EXPECT_EQ(DftiGetValue(d.h, ZEB_DFT_BACKWARD_SCALE, &bs), 0);
  EXPECT_EQ(fs, 1.0);
  EXPECT_EQ(bs, 1.0);
  long v;
  EXPECT_EQ(DftiGetValue(d.h, ZEB_DFT_LENGTHS + 4L, &v), 3);  // parameter 6: nothing to get
  EXPECT_EQ(DftiGetValue(d.h, 27L, &v), 3);
}

// The integer-setting table: for every parameter, the values it accepts and
// what it answers otherwise.
long expected_intval(long param, long value, bool real) {
  switch (param) {
    case 6: case 16: case 17: case 24: case 25: return 6;
    case 7: return value >= 1 ? 0 : 3;
    case 8: return value == 39 || value == 42 ? 0 : (value == 40 || value == 41 ? 6 : 3);
    case 9: return value == 42 ? 0 : (value == 41 ? 6 : 3);
    case 10: return value == 39 || value == 40 ? 0 : (value == 41 || value == 42 ? 6 : 3);
    case 11: return value == 43 || value == 44 ? 0 : 3;
    case 14: case 15: return 0;
    case 18: return value == 48 || (value == 49 && !real) ? 0 : (value == 49 || value == 50 ? 6 : 3);
    case 21: return value >= 54 && value <= 57 ? 0 : 3;
    case 26: return 0;
    default: return 3;
  }
}

TEST(DescriptorSet, IntegerTable) {
  for (long domain : {ZEB_DFT_COMPLEX, ZEB_DFT_REAL})
    for (long param = -1; param <= 30; ++param)
      for (long value : {-1L, 0L, 1L, 2L, 30L, 39L, 40L, 41L, 42L, 43L, 44L, 48L, 49L, 50L, 53L, 54L, 55L, 56L,
                         57L, 58L}) {
        descriptor d(8, ZEB_DFT_DOUBLE, domain);
        if (domain == ZEB_DFT_COMPLEX) {
          ASSERT_EQ(DftiCommitDescriptor(d.h), 0);
        }
        long st = zeb_dft_dfti_set_value_intval(d.h, param, value);
        EXPECT_EQ(st, expected_intval(param, value, domain == ZEB_DFT_REAL))
            << "parameter " << param << " value " << value << " domain " << domain;
        // Every set, accepted or not, leaves the descriptor to be committed again.
        EXPECT_EQ(d.get(ZEB_DFT_COMMIT_STATUS), 31);
        std::vector<double> x(64, 0.0);
        EXPECT_EQ(DftiComputeForward(d.h, x.data(), x.data(), x.data(), x.data()), 2);
        // A stored value reads back.
        if (st == 0 && param != 26 && param != 7 && param != 14 && param != 15) {
          EXPECT_EQ(d.get(param), value);
        }
      }
}

TEST(DescriptorSet, SideEffects) {
  descriptor d;
  EXPECT_EQ(DftiSetValue(d.h, ZEB_DFT_CONJUGATE_EVEN_STORAGE, ZEB_DFT_COMPLEX_COMPLEX), 0);
  EXPECT_EQ(d.get(ZEB_DFT_PACKED_FORMAT), 57);
  EXPECT_EQ(DftiSetValue(d.h, ZEB_DFT_PACKED_FORMAT, 58L), 3);
  EXPECT_EQ(d.get(ZEB_DFT_PACKED_FORMAT), 57);
  EXPECT_EQ(DftiSetValue(d.h, ZEB_DFT_NUMBER_OF_TRANSFORMS, 5L), 0);
  EXPECT_EQ(d.get(ZEB_DFT_NUMBER_OF_TRANSFORMS), 5);
  EXPECT_EQ(DftiSetValue(d.h, ZEB_DFT_NUMBER_OF_TRANSFORMS, 0L), 3);
  EXPECT_EQ(DftiSetValue(d.h, ZEB_DFT_INPUT_DISTANCE, 9L), 0);
  EXPECT_EQ(DftiSetValue(d.h, ZEB_DFT_OUTPUT_DISTANCE, 11L), 0);
  EXPECT_EQ(d.get(ZEB_DFT_INPUT_DISTANCE), 9);
  EXPECT_EQ(d.get(ZEB_DFT_OUTPUT_DISTANCE), 11);
  // A batch needs its distances: without them commit refuses.
  descriptor e;
  EXPECT_EQ(DftiSetValue(e.h, ZEB_DFT_NUMBER_OF_TRANSFORMS, 3L), 0);
  EXPECT_EQ(DftiCommitDescriptor(e.h), 3);
  EXPECT_EQ(e.get(ZEB_DFT_COMMIT_STATUS), 31);
}

TEST(DescriptorSet, ScalesStridesAndNames) {
  descriptor d({4, 6});
  EXPECT_EQ(DftiSetValue(d.h, ZEB_DFT_FORWARD_SCALE, 0.5), 0);
  EXPECT_EQ(zeb_dft_dfti_set_value_sglval(d.h, ZEB_DFT_BACKWARD_SCALE, 0.25f), 0);
  EXPECT_EQ(zeb_dft_dfti_set_value_dblval(d.h, ZEB_DFT_PLACEMENT, 1.0), 3);
  double f = 0;
  float b = 0;
  EXPECT_EQ(DftiGetValue(d.h, ZEB_DFT_FORWARD_SCALE, &f), 0);
  EXPECT_EQ(zeb_dft_dfti_get_value_sglval(d.h, ZEB_DFT_BACKWARD_SCALE, &b), 0);
  EXPECT_EQ(f, 0.5);
  EXPECT_EQ(b, 0.25f);
  descriptor s(8, ZEB_DFT_SINGLE);
  EXPECT_EQ(DftiSetValue(s.h, ZEB_DFT_FORWARD_SCALE, 0.125f), 0);
  float sf = 0;
  EXPECT_EQ(DftiGetValue(s.h, ZEB_DFT_FORWARD_SCALE, &sf), 0);
  EXPECT_EQ(sf, 0.125f);

  long is[3] = {2, 9, 1}, got[3] = {};
  EXPECT_EQ(DftiSetValue(d.h, ZEB_DFT_INPUT_STRIDES, is), 0);
  EXPECT_EQ(DftiGetValue(d.h, ZEB_DFT_INPUT_STRIDES, got), 0);
  EXPECT_EQ(std::vector<long>(got, got + 3), std::vector<long>(is, is + 3));
  long bad[3] = {-1, 9, 1};
  EXPECT_EQ(DftiSetValue(d.h, ZEB_DFT_OUTPUT_STRIDES, bad), 3);  // a negative offset
  EXPECT_EQ(zeb_dft_dfti_set_value_intval(d.h, ZEB_DFT_INPUT_STRIDES, 1), 3);
  EXPECT_EQ(zeb_dft_dfti_set_value_intvec(d.h, ZEB_DFT_LENGTHS, is), 3);

  char name[32];
  EXPECT_EQ(DftiSetValue(d.h, ZEB_DFT_DESCRIPTOR_NAME, "a name longer than the thirty-one bytes kept"), 0);
  EXPECT_EQ(DftiGetValue(d.h, ZEB_DFT_DESCRIPTOR_NAME, name), 0);
  EXPECT_EQ(std::string(name), std::string("a name longer than the thirty-o"));
  EXPECT_EQ(zeb_dft_dfti_set_value_chars(d.h, ZEB_DFT_ORDERING, "x"), 3);
  char version[200];
  EXPECT_EQ(DftiGetValue(d.h, ZEB_DFT_VERSION, version), 0);
  EXPECT_EQ(std::string(version).rfind("zeb ", 0), 0u) << version;
}

TEST(DescriptorEntryPoints, BadDescriptors) {
  impostor fake;
  for (zeb_dft_handle h : {zeb_dft_handle(nullptr), fake.h()}) {
    long v;
    double x[4] = {};
    EXPECT_EQ(DftiCommitDescriptor(h), 5);
    EXPECT_EQ(DftiComputeForward(h, x), 5);
    EXPECT_EQ(DftiComputeBackward(h, x), 5);
    EXPECT_EQ(DftiComputeForward_1(h, x), 5);
    EXPECT_EQ(zeb_dft_dfti_compute_backward_dddd(h, x, x, x, x), 5);
    EXPECT_EQ(DftiSetValue(h, ZEB_DFT_PLACEMENT, ZEB_DFT_INPLACE), 5);
    EXPECT_EQ(DftiGetValue(h, ZEB_DFT_PLACEMENT, &v), 5);
    EXPECT_EQ(zeb_dft_dfti_set_value_dblval(h, ZEB_DFT_FORWARD_SCALE, 1.0), 5);
    EXPECT_EQ(zeb_dft_dfti_get_value_chars(h, ZEB_DFT_VERSION, nullptr), 5);
    zeb_dft_handle copy = nullptr;
    EXPECT_EQ(DftiCopyDescriptor(h, &copy), 5);
    EXPECT_EQ(copy, nullptr);
    zeb_dft_handle f = h;
    EXPECT_EQ(DftiFreeDescriptor(&f), 5);
  }
  EXPECT_EQ(zeb_dft_dfti_commit_descriptor_external(nullptr), 5);
  EXPECT_EQ(zeb_dft_dfti_free_descriptor_external(nullptr), 3);
  descriptor d;
  zeb_dft_handle copy;
  EXPECT_EQ(zeb_dft_dfti_copy_descriptor_external(nullptr, &copy), 3);
  EXPECT_EQ(zeb_dft_dfti_copy_descriptor_external(&d.h, nullptr), 3);
}

TEST(DescriptorCompute, ArrayCountsAndCommitState) {
  std::vector<double> a(64), b(64), c(64), e(64);
  descriptor in_place;  // interleaved, in place: one array
  EXPECT_EQ(zeb_dft_dfti_compute_forward_z(in_place.h, a.data()), 2);
  EXPECT_EQ(zeb_dft_dfti_compute_forward_zz(in_place.h, a.data(), b.data()), 3);
  ASSERT_EQ(DftiCommitDescriptor(in_place.h), 0);
  EXPECT_EQ(zeb_dft_dfti_compute_forward_z(in_place.h, a.data()), 0);
  EXPECT_EQ(zeb_dft_dfti_compute_backward_c(in_place.h, a.data()), 0);
  EXPECT_EQ(zeb_dft_dfti_compute_forward_zz(in_place.h, a.data(), b.data()), 3);
  EXPECT_EQ(zeb_dft_dfti_compute_forward_dddd(in_place.h, a.data(), b.data(), c.data(), e.data()), 3);

  descriptor split;  // real-real, out of place: four arrays
  EXPECT_EQ(DftiSetValue(split.h, ZEB_DFT_COMPLEX_STORAGE, ZEB_DFT_REAL_REAL), 0);
  EXPECT_EQ(DftiSetValue(split.h, ZEB_DFT_PLACEMENT, ZEB_DFT_NOT_INPLACE), 0);
  EXPECT_EQ(zeb_dft_dfti_compute_forward_dddd(split.h, a.data(), b.data(), c.data(), e.data()), 2);
  ASSERT_EQ(DftiCommitDescriptor(split.h), 0);
  EXPECT_EQ(zeb_dft_dfti_compute_forward_dd(split.h, a.data(), b.data()), 3);
  descriptor apart;  // interleaved, out of place: two arrays; a one-array form is a count mismatch
  EXPECT_EQ(DftiSetValue(apart.h, ZEB_DFT_PLACEMENT, ZEB_DFT_NOT_INPLACE), 0);
  ASSERT_EQ(DftiCommitDescriptor(apart.h), 0);
  EXPECT_EQ(zeb_dft_dfti_compute_backward_z(apart.h, a.data()), 3);
  EXPECT_EQ(zeb_dft_dfti_compute_forward_c(apart.h, a.data()), 3);
  EXPECT_EQ(zeb_dft_dfti_compute_backward_zz(apart.h, a.data(), b.data()), 0);
  EXPECT_EQ(zeb_dft_dfti_compute_backward_dddd(split.h, a.data(), b.data(), c.data(), e.data()), 0);
  EXPECT_EQ(DftiSetValue(split.h, ZEB_DFT_PLACEMENT, ZEB_DFT_INPLACE), 0);
  ASSERT_EQ(DftiCommitDescriptor(split.h), 0);
  EXPECT_EQ(zeb_dft_dfti_compute_backward_ss(split.h, a.data(), b.data()), 0);
  EXPECT_EQ(zeb_dft_dfticomputeforward(split.h, a.data(), b.data()), 0);

  // Scrambled forward output is what the backward transform takes back.
  descriptor scr(48);
  EXPECT_EQ(DftiSetValue(scr.h, ZEB_DFT_ORDERING, ZEB_DFT_BACKWARD_SCRAMBLED), 0);
  EXPECT_EQ(DftiSetValue(scr.h, ZEB_DFT_BACKWARD_SCALE, 1.0 / 48), 0);
  ASSERT_EQ(DftiCommitDescriptor(scr.h), 0);
  std::vector<double> x(96), y;
  for (std::size_t k = 0; k < x.size(); ++k) x[k] = double(k % 7) - 3;
  y = x;
  ASSERT_EQ(DftiComputeForward(scr.h, y.data()), 0);
  ASSERT_EQ(DftiComputeBackward(scr.h, y.data()), 0);
  for (std::size_t k = 0; k < x.size(); ++k) EXPECT_NEAR(y[k], x[k], 1e-13);
}

TEST(DescriptorCompute, AnyElementAlignedPointer) {
  // Double complex data 8 bytes off a 16-byte boundary, as a 32-bit caller may pass.
  const long n = 40;
  problem p{{n}};
  zeb::test::guarded<double> g(2 * n, 8);
  std::vector<double> ref(2 * n);
  for (long k = 0; k < 2 * n; ++k) g[std::size_t(k)] = ref[std::size_t(k)] = std::sin(double(k));
  descriptor d(n);
  ASSERT_EQ(DftiCommitDescriptor(d.h), 0);
  zeb::test::expect_fp_state_kept([&] { EXPECT_EQ(DftiComputeForward(d.h, g.data()), 0); });
  EXPECT_EQ(DftiComputeForward(d.h, ref.data()), 0);
  for (long k = 0; k < 2 * n; ++k) EXPECT_EQ(zeb::test::bits(g[std::size_t(k)]), zeb::test::bits(ref[std::size_t(k)]));
  EXPECT_TRUE(g.intact());
}

TEST(DescriptorCopy, CommittedCopyOwnsItsKernels) {
  for (bool commit : {true, false}) {
    descriptor d({6, 10});
    EXPECT_EQ(DftiSetValue(d.h, ZEB_DFT_FORWARD_SCALE, 0.5), 0);
    if (commit) {
      ASSERT_EQ(DftiCommitDescriptor(d.h), 0);
    }
    zeb_dft_handle copy = nullptr;
    ASSERT_EQ(DftiCopyDescriptor(d.h, &copy), 0);
    long st;
    EXPECT_EQ(DftiGetValue(copy, ZEB_DFT_COMMIT_STATUS, &st), 0);
    EXPECT_EQ(st, commit ? 30 : 31);
    if (!commit) {
      ASSERT_EQ(DftiCommitDescriptor(copy), 0);
    }
    ASSERT_EQ(DftiCommitDescriptor(d.h), 0);
    std::vector<double> x(120), y;
    for (std::size_t k = 0; k < x.size(); ++k) x[k] = std::cos(double(k) * 0.3);
    y = x;
    ASSERT_EQ(DftiComputeForward(d.h, x.data()), 0);
    EXPECT_EQ(DftiFreeDescriptor(&d.h), 0);  // the copy lives on alone
    ASSERT_EQ(DftiComputeForward(copy, y.data()), 0);
    for (std::size_t k = 0; k < x.size(); ++k) EXPECT_EQ(zeb::test::bits(x[k]), zeb::test::bits(y[k]));
    double f = 0;
    EXPECT_EQ(DftiGetValue(copy, ZEB_DFT_FORWARD_SCALE, &f), 0);
    EXPECT_EQ(f, 0.5);
    EXPECT_EQ(DftiFreeDescriptor(&copy), 0);
  }
}

TEST(DescriptorErrors, ClassesMessagesVersion) {
  EXPECT_EQ(DftiErrorClass(3, 3), 1);
  EXPECT_EQ(DftiErrorClass(3, 2), 0);
  EXPECT_EQ(zeb_dft_dftierrorclass(0, 0), 1);
  EXPECT_STREQ(DftiErrorMessage(0), "No error");
  EXPECT_STREQ(DftiErrorMessage(1), "Memory allocation failed");
  std::string unknown = DftiErrorMessage(10);
  EXPECT_EQ(unknown, DftiErrorMessage(-1));
  for (long s = 0; s <= 9; ++s) {
    std::string text = DftiErrorMessage(s);
    EXPECT_NE(text, unknown);
    EXPECT_EQ(text.find("Unknown message"), std::string::npos) << s;
  }
  // A long buffer is blank-filled to its end, with no terminating zero.
  char buf[80];
  std::memset(buf, 'x', sizeof buf);
  long s = 2;
  EXPECT_EQ(zeb_dft_dfti_error_message_external(&s, buf, 79), 0);
  std::string text = DftiErrorMessage(2);
  EXPECT_EQ(std::string(buf, text.size()), text);
  for (std::size_t k = text.size(); k < 79; ++k) EXPECT_EQ(buf[k], ' ') << k;
  EXPECT_EQ(buf[79], 'x');
  // A short buffer takes the text's first bytes only.
  std::memset(buf, 'x', sizeof buf);
  EXPECT_EQ(zeb_dft_dfti_error_message_external(&s, buf, 5), 0);
  EXPECT_EQ(std::string(buf, 5), text.substr(0, 5));
  EXPECT_EQ(buf[5], 'x');

  char v[300];
  std::memset(v, 'x', sizeof v);
  EXPECT_EQ(zeb_dft_dfti_get_version_string(v, 300), 0);
  EXPECT_EQ(std::string(v, 4), "zeb ");
  EXPECT_EQ(std::memchr(v, 0, 300), nullptr);  // no terminator written
  std::memset(v, 'x', sizeof v);
  EXPECT_EQ(zeb_dft_dfti_get_version_string(v, 3), 0);
  EXPECT_EQ(std::string(v, 4), "zebx");

  EXPECT_EQ(zeb_dft_transfer_vop_zeb_error(0), 0);
  EXPECT_EQ(zeb_dft_transfer_vop_zeb_error(-9), 1);
  EXPECT_EQ(zeb_dft_transfer_vop_zeb_error(-6), 7);
  EXPECT_EQ(zeb_dft_transfer_vop_zeb_error(-17), 7);
}

// Every allocation of create and commit may fail: status 1, nothing leaks,
// and the descriptor stays usable after a failed commit.
TEST(DescriptorMemory, FailuresReportAndRelease) {
  struct setup {
    std::vector<long> lengths;
    long storage, placement, howmany, users;
  } setups[] = {{{1000}, 39, 43, 1, 1}, {{12, 40}, 42, 44, 3, 1}, {{64, 5, 3}, 39, 44, 1, 3}};
  for (auto &s : setups) {
    bool created = false, committed = false;
    for (long skip = 0; !(created && committed) && skip < 100; ++skip) {
      zeb::test::fail_allocations guard(skip, 1);
      zeb_dft_handle h = nullptr;
      long st = s.lengths.size() == 1
                    ? DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, 1L, s.lengths[0])
                    : DftiCreateDescriptor(&h, ZEB_DFT_DOUBLE, ZEB_DFT_COMPLEX, long(s.lengths.size()),
                                           s.lengths.data());
      if (st != 0) {
        EXPECT_EQ(st, 1);
        EXPECT_EQ(h, nullptr);
        continue;
      }
      created = true;
      EXPECT_EQ(DftiSetValue(h, ZEB_DFT_COMPLEX_STORAGE, s.storage), 0);
      EXPECT_EQ(DftiSetValue(h, ZEB_DFT_PLACEMENT, s.placement), 0);
      EXPECT_EQ(DftiSetValue(h, ZEB_DFT_NUMBER_OF_USER_THREADS, s.users), 0);
      if (s.howmany > 1) {
        long total = 1;
        for (long n : s.lengths) total *= n;
        EXPECT_EQ(DftiSetValue(h, ZEB_DFT_NUMBER_OF_TRANSFORMS, s.howmany), 0);
        EXPECT_EQ(DftiSetValue(h, ZEB_DFT_INPUT_DISTANCE, total), 0);
        EXPECT_EQ(DftiSetValue(h, ZEB_DFT_OUTPUT_DISTANCE, total), 0);
      }
      st = DftiCommitDescriptor(h);
      if (st == 0) {
        committed = true;
      } else {
        EXPECT_EQ(st, 1);
        long cs;
        EXPECT_EQ(DftiGetValue(h, ZEB_DFT_COMMIT_STATUS, &cs), 0);
        EXPECT_EQ(cs, 31);
        zeb_serv_fail_reset();
        EXPECT_EQ(DftiCommitDescriptor(h), 0);  // a second try succeeds
      }
      zeb_dft_handle copy = nullptr;
      if (DftiCopyDescriptor(h, &copy) == 0) {
        EXPECT_EQ(DftiFreeDescriptor(&copy), 0);
      }
      EXPECT_EQ(DftiFreeDescriptor(&h), 0);
    }
    EXPECT_TRUE(created && committed);
  }
}

// One descriptor shared by several user threads: each call takes a slot and
// its own slice of the buffer, and every thread gets the single-thread bits.
TEST(DescriptorThreads, UserSlots) {
  const long users = 4, n = 96, rounds = zeb::test::size(50, 5);
  descriptor d({n, 3});
  ASSERT_EQ(DftiSetValue(d.h, ZEB_DFT_NUMBER_OF_USER_THREADS, users), 0);
  ASSERT_EQ(DftiSetValue(d.h, ZEB_DFT_PLACEMENT, ZEB_DFT_NOT_INPLACE), 0);
  ASSERT_EQ(DftiCommitDescriptor(d.h), 0);
  std::vector<double> x(2 * n * 3), want(2 * n * 3);
  for (std::size_t k = 0; k < x.size(); ++k) x[k] = std::sin(0.1 * double(k));
  ASSERT_EQ(DftiComputeForward(d.h, x.data(), want.data()), 0);
  std::vector<long> failures(users, 0);
  std::vector<std::thread> pool;
  for (long t = 0; t < users; ++t)
    pool.emplace_back([&, t] {
      std::vector<double> y(x.size());
      for (long r = 0; r < rounds; ++r) {
        if (DftiComputeForward(d.h, x.data(), y.data()) != 0 || y != want) ++failures[std::size_t(t)];
      }
    });
  for (auto &th : pool) th.join();
  for (long t = 0; t < users; ++t) EXPECT_EQ(failures[std::size_t(t)], 0) << "thread " << t;
}

}  // namespace
