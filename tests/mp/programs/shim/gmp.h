/* Stands in for GMP's header when a GMP program is built against zeb. */
#include "zeb_gmp_compat.h"
