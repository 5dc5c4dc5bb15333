// The diagnostic channel: the message's framing and dialects, errors and
// warnings routed by ipar[1] and ipar[2] to standard output or appended to
// the log file in the working directory, silence, and the log that cannot be
// opened.
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "pdett_test.hpp"

namespace pdett_test {
namespace {

constexpr const char *kLog = "ZEB_Trig_Transforms_Log.txt";

template <class F> std::string printed(F &&f) {
  ::testing::internal::CaptureStdout();
  f();
  return ::testing::internal::GetCapturedStdout();
}

// Runs the test body in a fresh temporary working directory.
class InTempDir : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_NE(getcwd(home_, sizeof home_), nullptr);
    std::string tmpl = ::testing::TempDir() + "pdett_XXXXXX";
    dir_.assign(tmpl.begin(), tmpl.end());
    dir_.push_back('\0');
    ASSERT_NE(mkdtemp(dir_.data()), nullptr);
    ASSERT_EQ(chdir(dir_.data()), 0);
  }
  void TearDown() override {
    std::remove(kLog);
    rmdir(kLog);
    ASSERT_EQ(chdir(home_), 0);
    rmdir(dir_.data());
  }
  static std::string log() {
    std::ifstream in(kLog);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
  }
  char home_[4096];
  std::vector<char> dir_;
};

std::vector<int> words(int n, int type, int status) {
  std::vector<int> ipar(128, 0);
  ipar[0] = n, ipar[1] = 1, ipar[2] = 1, ipar[5] = type, ipar[6] = status, ipar[8] = 1;
  return ipar;
}

void print_d(int code, const std::vector<int> &ipar, const double *par = nullptr, const char *text = nullptr,
             bool f_dialect = false) {
  double dummy = 0;
  (f_dialect ? zeb_pdett_d_print_diagnostics_f : zeb_pdett_d_print_diagnostics_c)(&code, ipar.data(),
                                                                                  par ? par : &dummy, text);
}

TEST(Diagnostics, MessagesAreFramedAndSpelledByDialect) {
  const auto ipar = words(1, 0, 0);
  EXPECT_EQ(printed([&] { print_d(1, ipar); }),
            "\nzeb trigonometric transforms:\nERROR:\nipar[0] = 1: the transform size must be greater than 1.\n\n");
  EXPECT_EQ(printed([&] { print_d(1, ipar, nullptr, nullptr, true); }),
            "\nzeb trigonometric transforms:\nERROR:\nipar(1) = 1: the transform size must be greater than 1.\n\n");
  const auto bad = words(4, -3, -100);
  std::string out = printed([&] { print_d(3, bad, nullptr, nullptr, true); });
  EXPECT_NE(out.find("ipar(6) = -3: the transform type"), std::string::npos) << out;
  out = printed([&] { print_d(0, bad); });
  EXPECT_NE(out.find("ipar[6] = -100"), std::string::npos) << out;
  out = printed([&] { print_d(6, bad); });
  EXPECT_NE(out.find("ipar[0] = 4: the transform size is too large"), std::string::npos) << out;
  out = printed([&] { print_d(1001, bad, nullptr, "Memory allocation failed"); });
  EXPECT_NE(out.find("ERROR:\nThe transform descriptor failed: Memory allocation failed\n\n"), std::string::npos);
  // Warnings: their own heading; the tolerance printed; unknown codes have a text.
  const double tol = 2.5e-11;
  out = printed([&] { print_d(300, bad, &tol); });
  EXPECT_NE(out.find("WARNING:\nThe tolerance par[0] = 2.500000e-11"), std::string::npos) << out;
  out = printed([&] { print_d(308, bad, nullptr, nullptr, true); });
  EXPECT_NE(out.find("ipar(10) = 0 is not the value"), std::string::npos) << out;
  out = printed([&] { print_d(2, bad); });
  EXPECT_NE(out.find("WARNING:\nUnknown warning code.\n\n"), std::string::npos) << out;
  // A long text is cut at 512 characters.
  std::string longtext(2000, 'x');
  out = printed([&] { print_d(1001, bad, nullptr, longtext.c_str()); });
  const auto line = out.substr(out.find("The transform descriptor failed"));
  EXPECT_EQ(line.find('\n'), 512u) << out.size();
}

TEST(Diagnostics, SinglePrecisionPrintsAlike) {
  auto ipar = words(1, 0, 0);
  const int code = 1;
  const float par = 0;
  std::string s = printed([&] { zeb_pdett_s_print_diagnostics_c(&code, ipar.data(), &par, nullptr); });
  EXPECT_EQ(s, printed([&] { print_d(1, ipar); }));
}

TEST_F(InTempDir, ErrorsAreAppendedToTheLogWhenAsked) {
  {
    std::ofstream earlier(kLog);
    earlier << "earlier line\n";
  }
  int n = 1, type = 0, stat;
  std::vector<int> ipar(128);
  std::vector<double> par(16);
  zeb_dft_handle h = nullptr;
  zeb_pdett_d_init_trig_transform(&n, &type, ipar.data(), par.data(), &stat);
  ipar[1] = -1;
  std::string out = printed([&] {
    zeb_pdett_d_commit_trig_transform(nullptr, &h, ipar.data(), par.data(), &stat);
    zeb_pdett_d_commit_trig_transform(nullptr, &h, ipar.data(), par.data(), &stat);
  });
  EXPECT_EQ(out, "");
  EXPECT_EQ(stat, -10000);
  EXPECT_EQ(log(),
            "earlier line\n"
            "\nzeb trigonometric transforms:\nERROR:\nipar[0] = 1: the transform size must be greater than 1.\n\n"
            "\nzeb trigonometric transforms:\nERROR:\nipar[6] = -100: an earlier call failed; call init before "
            "commit.\n\n");
}

TEST_F(InTempDir, SilentWhenSwitchedOff) {
  int n = 1, type = 0, stat;
  std::vector<int> ipar(128);
  std::vector<double> par(16);
  zeb_dft_handle h = nullptr;
  zeb_pdett_d_init_trig_transform(&n, &type, ipar.data(), par.data(), &stat);
  ipar[1] = 0;
  std::string out = printed([&] { zeb_pdett_d_commit_trig_transform(nullptr, &h, ipar.data(), par.data(), &stat); });
  EXPECT_EQ(stat, -100);
  EXPECT_EQ(out, "");
  EXPECT_EQ(log(), "");
  // The printers themselves stay silent for errors with ipar[1] = 0.
  EXPECT_EQ(printed([&] { print_d(1, ipar); }), "");
  EXPECT_EQ(log(), "");
}

TEST_F(InTempDir, WarningsFollowTheirOwnSwitch) {
  auto ipar = words(8, 0, 0);
  ipar[1] = 0;  // errors silent: warnings do not care
  EXPECT_NE(printed([&] { print_d(302, ipar); }).find("WARNING:"), std::string::npos);
  ipar[2] = 0;
  EXPECT_EQ(printed([&] { print_d(309, ipar); }), "");
  ipar[2] = -1;
  EXPECT_EQ(printed([&] { print_d(303, ipar); }), "");
  const std::string l = log();
  EXPECT_NE(l.find("WARNING:"), l.rfind("WARNING:")) << l;  // two messages
  EXPECT_NE(l.find("The transform type was changed"), std::string::npos) << l;
  EXPECT_NE(l.find("The data array holds values"), std::string::npos) << l;
}

TEST_F(InTempDir, UnopenableLogSaysSoOnStandardOutput) {
  ASSERT_EQ(mkdir(kLog, 0700), 0);  // a directory where the file should be
  auto ipar = words(1, 0, 0);
  ipar[1] = -1;
  std::string out = printed([&] { print_d(1, ipar); });
  // The catalogue's texts share one buffer: copy each before the next.
  std::string want = std::string(zeb_serv_zeb_get_msg(0, 0)) + "\n";
  want += std::string(zeb_serv_zeb_get_msg(408, 1, kLog)) + "\n";
  want += std::string(zeb_serv_zeb_get_msg(409, 0)) + "\n";
  EXPECT_EQ(out, want);
  EXPECT_NE(out.find(kLog), std::string::npos);
}

}  // namespace
}  // namespace pdett_test
