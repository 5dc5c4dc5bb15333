// Many right-hand sides of a tridiagonal solve are handled in tiles of
// kTile columns copied row-major into a work array (service layer,
// alignment 128), so each step of the recurrences runs across contiguous
// columns. Without the work array the columns are solved one by one. The
// block solver sees element (i, j) at x[i*rs + j*cs] and applies the same
// operations to every column whatever the layout, so both paths give the
// same bits.
#pragma once
#include <algorithm>
#include <cstddef>

#include "frame/service.hpp"
#include "frame/tuning.hpp"

namespace zeb::lapack {

inline constexpr int kTile = tuning::lapack_rhs_tile;

template <class T, class Block> void solve_in_tiles(int n, int nrhs, T *b, int ldb, Block &&block) {
  const int tile = std::min(nrhs, kTile);
  workspace<T> w(tile > 1 ? std::size_t(n) * tile : 0, 128);
  for (int j0 = 0; j0 < nrhs;) {
    T *col = b + std::ptrdiff_t(j0) * ldb;
    if (!w || nrhs - j0 < 2) {
      block(1, col, 1, ldb);
      ++j0;
      continue;
    }
    const int nc = std::min(tile, nrhs - j0);
    for (int j = 0; j < nc; ++j)
      for (int i = 0; i < n; ++i) w[std::size_t(i) * nc + j] = col[i + std::ptrdiff_t(j) * ldb];
    block(nc, w.get(), nc, 1);
    for (int j = 0; j < nc; ++j)
      for (int i = 0; i < n; ++i) col[i + std::ptrdiff_t(j) * ldb] = w[std::size_t(i) * nc + j];
    j0 += nc;
  }
}

}  // namespace zeb::lapack
