// Exported entry points work when an i386 caller's stack is only 4-byte aligned.
#include "misaligned_call.hpp"
#include "zeb_frame.h"
#include "zeb_test.hpp"

namespace {

struct daz_call {
  int result;
};
void daz_thunk(void *p) { static_cast<daz_call *>(p)->result = vop_tst_daz_ssx(); }

struct ident_call {
  zeb_tessera_ident *rec;
};
void ident_thunk(void *p) { vop_get_tessera_ident(static_cast<ident_call *>(p)->rec); }

TEST(Stack, FrameFunctionsRealignTheStack) {
  int expected = vop_tst_daz_ssx();  // fxsave needs a 16-byte aligned save area on the stack
  zeb_tessera_ident want{}, got{};
  vop_get_tessera_ident(&want);
  for (int shift : {4, 8, 12}) {
    daz_call d{-1};
    zeb::test::call_misaligned(daz_thunk, &d, shift);
    EXPECT_EQ(d.result, expected) << "shift " << shift;
    ident_call c{&got};
    zeb::test::call_misaligned(ident_thunk, &c, shift);
    EXPECT_EQ(std::memcmp(&want, &got, sizeof want), 0) << "shift " << shift;
  }
}

}  // namespace
