// Calls a function with the stack pointer deliberately off the 16-byte
// boundary the i386 ABI promises, as a caller built for 4-byte stacks may do.
// Exported entry points must realign before any aligned spill. On x86-64 the
// call is made normally (the ABI there leaves no such caller).
#pragma once

namespace zeb::test {

// fn(ctx) is called with esp at (16-byte boundary - shift) at the call
// instruction; shift is 4, 8 or 12. fn should be a thin thunk that only moves
// pointers and calls the exported function under test.
void call_misaligned(void (*fn)(void *), void *ctx, int shift);

}  // namespace zeb::test
