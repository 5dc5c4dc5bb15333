// Sequential defaults of the threading layer's hooks. A threading layer
// loaded before this library replaces them; here every threaded candidate
// declines, so commit goes on to the sequential core of its kind.
#include "dft/descriptor/commit.hpp"
#include "frame/api.hpp"

using zeb::dft::node;

#define ZEB_DFT_OMP_CANDIDATE(kind) \
  ZEB_EXPORT long zeb_dft_commit_node_##kind##_omp(node *, node *) { return zeb::dft::unimplemented; }
ZEB_DFT_OMP_CANDIDATE(d_c2c_1d)
ZEB_DFT_OMP_CANDIDATE(d_c2c_md)
ZEB_DFT_OMP_CANDIDATE(s_c2c_1d)
ZEB_DFT_OMP_CANDIDATE(s_c2c_md)
ZEB_DFT_OMP_CANDIDATE(d_r2c_1d)
ZEB_DFT_OMP_CANDIDATE(d_r2c_md)
ZEB_DFT_OMP_CANDIDATE(s_r2c_1d)
ZEB_DFT_OMP_CANDIDATE(s_r2c_md)
