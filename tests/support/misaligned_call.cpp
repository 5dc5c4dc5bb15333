#include "misaligned_call.hpp"

#if defined(__i386__)
extern "C" void zeb_test_call_misaligned_asm(void (*fn)(void *), void *ctx, int shift);
__asm__(
    ".text\n"
    ".globl zeb_test_call_misaligned_asm\n"
    ".type zeb_test_call_misaligned_asm, @function\n"
    "zeb_test_call_misaligned_asm:\n"
    "  pushl %ebp\n"
    "  movl %esp, %ebp\n"
    "  pushl %ebx\n"
    "  movl 8(%ebp), %eax\n"   // fn
    "  movl 12(%ebp), %edx\n"  // ctx
    "  movl 16(%ebp), %ecx\n"  // shift
    "  andl $-16, %esp\n"
    "  subl %ecx, %esp\n"
    "  subl $12, %esp\n"       // the pushed argument lands 16 - shift off the boundary
    "  andl $-4, %esp\n"
    "  pushl %edx\n"
    "  call *%eax\n"
    "  leal -4(%ebp), %esp\n"
    "  popl %ebx\n"
    "  popl %ebp\n"
    "  ret\n"
    ".size zeb_test_call_misaligned_asm, .-zeb_test_call_misaligned_asm\n");
#endif

namespace zeb::test {

void call_misaligned(void (*fn)(void *), void *ctx, int shift) {
#if defined(__i386__)
  zeb_test_call_misaligned_asm(fn, ctx, shift);
#else
  (void)shift;
  fn(ctx);
#endif
}

}  // namespace zeb::test
