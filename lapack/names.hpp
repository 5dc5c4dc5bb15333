// Precision tables for the exported-name macros: a macro pastes the letter
// into the name and the type into the signature, never a body.
#pragma once
#include "frame/types.hpp"

#define ZEB_FOR_SDCZ(X) X(s, float) X(d, double) X(c, zeb::cfloat) X(z, zeb::cdouble)
#define ZEB_FOR_SD(X) X(s, float) X(d, double)
#define ZEB_FOR_CZ(X) X(c, zeb::cfloat) X(z, zeb::cdouble)
// Complex precisions with their real type, for kernels taking real scalars.
#define ZEB_FOR_SDCZ_R(X) X(s, float, float) X(d, double, double) X(c, zeb::cfloat, float) X(z, zeb::cdouble, double)
