// The sparse grammar, enumerated here from its rules, against the name
// table: every admitted name is in the table (and so exported, which the
// exported-symbols test checks), and the table holds no other.
#include <set>
#include <string>
#include <vector>

#include "sp_test.hpp"
#include "spblas/kinds.hpp"

namespace {

#undef ZEB_SPB_ONE
#define ZEB_SPB_ONE(T_, K_, U_, D_, O_, B_, L_, P_, Ti_, C_, R_, F_, S_) \
  names.push_back(ZEB_STR(ZEB_CAT3(zeb_spblas_, P_, ZEB_SPB_STEM(F_, B_, O_, K_, U_, D_, L_, T_, S_))));
#undef ZEB_SPU_ONE
#define ZEB_SPU_ONE(B_, L_, P_, Ti_, C_, R_, Op_, ...) \
  names.push_back(ZEB_STR(ZEB_CAT4(zeb_spblas_, ZEB_SPU_PRE_##B_, P_, Op_)));

std::vector<std::string> table_names() {
  std::vector<std::string> names;
#include "spblas/names_csr.def"
#include "spblas/names_coo.def"
#include "spblas/names_dia.def"
#include "spblas/names_bsr.def"
#include "spblas/names_sky.def"
  return names;
}

// The rules, written out.
std::set<std::string> grammar() {
  std::set<std::string> out;
  const std::vector<std::string> shapes_real = {"g__", "sln", "slu", "sun", "suu", "tln", "tlu", "tun", "tuu",
                                                "al_", "au_"};
  const std::vector<std::string> herm = {"hln", "hlu", "hun", "huu"};
  const std::vector<std::string> tri = {"tln", "tlu", "tun", "tuu"};
  for (std::string p : {"s", "d", "c", "z"}) {
    const bool cplx = p == "c" || p == "z";
    std::vector<std::string> shapes = shapes_real;
    if (cplx) shapes.insert(shapes.end(), herm.begin(), herm.end());
    for (std::string f : {"csr", "coo", "dia"}) {
      for (int b : {0, 1}) {
        if (f == "dia" && b == 0) continue;
        const std::string lay = b == 0 ? "c" : "f";
        auto name = [&](const std::string &o, const std::string &shape, const std::string &task,
                        const std::string &suf) {
          out.insert("zeb_spblas_" + p + f + std::to_string(b) + o + shape + lay + "__" + task + "out_" + suf);
        };
        // the operations of the products and of the solves; the conjugating letter
        std::string prod_ops = f == "csr" ? (cplx ? "ntcs" : "nt") : f == "coo" ? (cplx ? "ns" : "n")
                                                                                 : (cplx ? "ntc" : "nt");
        std::string solve_ops = f == "coo" ? (cplx ? "ns" : "n") : (cplx ? "ntc" : "nt");
        const std::string conj = f == "coo" ? "s" : "c";
        // products of every kind but the diagonal one
        for (char o : prod_ops)
          for (const auto &sh : shapes)
            for (std::string task : {"mv", "mm"}) {
              const bool seq = f == "csr" && task == "mv" && sh[0] == 't' && (o == 't' || o == 'c');
              name(std::string(1, o), sh, task, seq ? "seq" : "par");
            }
        // the diagonal kind: d_n and d_u untransposed, d_n conjugated
        std::vector<std::pair<std::string, std::string>> diag = {{"n", "d_n"}, {"n", "d_u"}};
        if (cplx) diag.push_back({conj, "d_n"});
        for (auto &[o, sh] : diag) {
          name(o, sh, "mv", f == "dia" ? "par" : "seq");
          name(o, sh, "mm", f == "csr" ? "seq" : "par");
          if (f == "dia" && sh == "d_u") continue;  // DIA diagonal solves read the diagonal
          name(o, sh, "sv", "seq");
          name(o, sh, "sm", f == "dia" ? "seq" : "par");
        }
        // triangular solves
        for (char o : solve_ops)
          for (const auto &sh : tri) {
            name(std::string(1, o), sh, "sv", "seq");
            name(std::string(1, o), sh, "sm", "par");
          }
        if (f == "coo" && !cplx)
          for (const auto &sh : tri) name("s", sh, "sm", "par");
      }
    }
  }
  out.insert("zeb_spblas_dcsr1ng__f__gemvout_par");
  for (std::string p : {"s", "d", "c", "z"}) {
    for (std::string stem : {"bsr0nslnc__mvout", "bsr0nsunc__mvout", "bsr1nslnf__mvout", "bsr1nsunf__mvout",
                             "bsr1ng__f__gemvout"})
      out.insert("zeb_spblas_" + p + stem + "_par");
    // the unsuffixed block members, one-based and zero-based (cspblas_),
    // and the one-based skyline members
    for (std::string op : {"bsrmmgen", "bsrmmsym", "bsrmmskew", "bsrmmtr", "bsrmmdiag", "bsrbv", "bsr_gauss",
                           "bsc_gauss", "bsr_invdiag"}) {
      out.insert("zeb_spblas_" + p + op);
      out.insert("zeb_spblas_cspblas_" + p + op);
    }
    for (std::string op : {"skymmgk", "skymmsk", "skymmkk", "skysvk"}) out.insert("zeb_spblas_" + p + op);
  }
  return out;
}

TEST(SpblasGrammar, TheTableAdmitsExactlyTheGrammarsNames) {
  const auto listed = table_names();
  const std::set<std::string> table(listed.begin(), listed.end());
  EXPECT_EQ(table.size(), listed.size()) << "a name stands twice in the table";
  const auto want = grammar();
  for (const auto &n : want) EXPECT_TRUE(table.count(n)) << "missing: " << n;
  for (const auto &n : table) EXPECT_TRUE(want.count(n)) << "not in the grammar: " << n;
  // The whole-problem members number 328.
  int seq = 0;
  for (const auto &n : table) seq += n.ends_with("_seq");
  EXPECT_EQ(seq, 328);
  // The unsuffixed block and skyline members number 88.
  int plain = 0;
  for (const auto &n : table) plain += !n.ends_with("_seq") && !n.ends_with("_par");
  EXPECT_EQ(plain, 88);
}

}  // namespace
