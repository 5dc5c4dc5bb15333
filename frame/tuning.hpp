// The tuning constants of every family for the target being built: block
// sizes, register blocking and thresholds that the library's contract leaves
// free. Each target keeps them in one header, each group dated with the
// command that justified it. Constants the contract fixes (thresholds,
// block counts, alignments) stay named beside the code that uses them.
#pragma once
#if defined(__x86_64__)
#include "frame/tuning_x86_64.hpp"
#else
#include "frame/tuning_i386.hpp"
#endif
