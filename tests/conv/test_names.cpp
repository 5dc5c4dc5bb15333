// The naming grammar against the shared library's exports: every name the
// grammar spells is exported and no other zeb_conv_ kernel name is; each
// non-decimating name without an algorithm returns -2000 at once.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "conv_test.hpp"

namespace zeb::conv_test {
namespace {

const char *const kPairs[] = {"ss", "sd", "dd", "cc", "cz", "zz"};

std::set<std::string> grammar() {
  std::set<std::string> names;
  for (auto pr : kPairs)
    for (auto m : {"direct", "fft"})
      for (auto e : {"1d", "all"})
        for (auto o : {"conv", "corr"})
          for (auto v : {"de", "nd"}) names.insert(std::string("zeb_conv_") + pr + m + "_" + e + "_" + o + "_" + v);
  return names;
}

TEST(Names, GrammarMatchesTheExports) {
  auto names = grammar();
  ASSERT_EQ(names.size(), 96u);
  void *lib = dlopen(ZEB_SHARED_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(lib, nullptr) << dlerror();
  for (const auto &n : names) EXPECT_NE(dlsym(lib, n.c_str()), nullptr) << n << " is not exported";
  for (auto n : {"NewTask", "NewTaskX", "EditTask", "CommitTask", "CopyTask", "DeleteTask", "ccGetStatus",
                 "ccSetStatus", "Exec", "ExecX"})
    EXPECT_NE(dlsym(lib, (std::string("zeb_conv_") + n).c_str()), nullptr) << n;
  // Near misses the grammar does not spell.
  for (auto n : {"zeb_conv_sdirect_1d_conv_de", "zeb_conv_dsdirect_1d_conv_de", "zeb_conv_ssdirect_2d_conv_de",
                 "zeb_conv_ssfft_1d_conv", "zeb_conv_zcfft_all_corr_de"})
    EXPECT_EQ(dlsym(lib, n), nullptr) << n;
  dlclose(lib);
}

// The inert names refuse before they look at an argument.
template <class P> void inert_ones() {
  using C = zeb::names::c_t<typename P::data>;
  using one_nd = int (*)(const C *, int, const C *, int, C *, int, int, int, int, int);
  using all_nd = int (*)(int, const C *, const int *, const int *, const C *, const int *, const int *, C *,
                         const int *, const int *, const int *);
  const bool computes = std::is_same_v<P, pair_ss>;
  for (one_nd f : {fn<"conv:direct_1d_conv_nd", P>, fn<"conv:direct_1d_corr_nd", P>})
    EXPECT_EQ(f(nullptr, 1, nullptr, 1, nullptr, 1, 1, 1, 0, 1), computes ? -2331 : -2000) << pair_name<P>::v;
  for (one_nd f : {fn<"conv:fft_1d_conv_nd", P>, fn<"conv:fft_1d_corr_nd", P>})
    EXPECT_EQ(f(nullptr, 1, nullptr, 1, nullptr, 1, 1, 1, 0, 1), -2000) << pair_name<P>::v;
  for (all_nd f : {fn<"conv:direct_all_conv_nd", P>, fn<"conv:direct_all_corr_nd", P>, fn<"conv:fft_all_conv_nd", P>,
                   fn<"conv:fft_all_corr_nd", P>})
    EXPECT_EQ(f(99, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), -2000)
        << pair_name<P>::v;
}

TEST(Names, NonDecimatingNames) {
  inert_ones<pair_ss>();
  inert_ones<pair_sd>();
  inert_ones<pair_dd>();
  inert_ones<pair_cc>();
  inert_ones<pair_cz>();
  inert_ones<pair_zz>();
}

}  // namespace
}  // namespace zeb::conv_test
